// SPDX-License-Identifier: MIT
#include "platform/base/low_memory.h"

#include <sys/mman.h>

#include <algorithm>
#include <new>

namespace platform {
namespace {

constexpr std::uint64_t kEnd = std::uint64_t{1} << 32;
// From one place that is asked for to the next.
constexpr std::uint64_t kStep = std::uint64_t{1} << 20;

#ifdef MAP_32BIT
constexpr int kLow = MAP_32BIT;
#else
constexpr int kLow = 0;
#endif

// The place is only a wish to the system; null when it gave memory elsewhere, or none.
void* MapNear(std::uint64_t place, std::size_t size) {
  void* const wish = reinterpret_cast<void*>(static_cast<std::uintptr_t>(place));
  void* const given = mmap(wish, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | kLow, -1, 0);
  if (given == MAP_FAILED) return nullptr;
  if (reinterpret_cast<std::uintptr_t>(given) <= kEnd - size) return given;
  munmap(given, size);
  return nullptr;
}

void* MapLow(std::size_t size) {
  if (size < kEnd)
    for (std::uint64_t place = 0; place < kEnd; place += kStep)
      if (void* const given = MapNear(place, size)) return given;
  throw std::bad_alloc();
}

}  // namespace

LowMemory::LowMemory(std::size_t size) : size_(std::max<std::size_t>(size, 1)), data_(MapLow(size_)) {}

LowMemory::~LowMemory() { munmap(data_, size_); }

}  // namespace platform
