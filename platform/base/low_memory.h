// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

namespace platform {

/// Bytes whose addresses fit 32 bits, for requests that name memory by 32-bit numbers. Zero-filled; given back to the
/// system with the object.
class LowMemory {
 public:
  /// Throws std::bad_alloc when there is no such memory left.
  explicit LowMemory(std::size_t size);
  ~LowMemory();
  LowMemory(const LowMemory&) = delete;
  LowMemory& operator=(const LowMemory&) = delete;

  void* Data() const { return data_; }
  /// The address of the first byte; never 0.
  std::uint32_t Address() const {
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(data_));
  }

 private:
  const std::size_t size_;
  void* const data_;
};

}  // namespace platform
