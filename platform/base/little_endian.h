// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace platform {

/// An unsigned integer kept as little-endian bytes, alignment 1. Records are made of these, so every record
/// is packed by construction and reads the same on any machine. Trivial: a default-constructed one is
/// uninitialised, a value-initialised one is zero.
template <typename T>
class LittleUint {
  static_assert(std::is_unsigned_v<T>);

 public:
  LittleUint() = default;
  constexpr LittleUint(T value) { Set(value); }  // NOLINT: converts like the integer it stands for

  constexpr LittleUint& operator=(T value) {
    Set(value);
    return *this;
  }

  constexpr operator T() const {  // NOLINT: converts like the integer it stands for
    T value = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i) value = static_cast<T>(value | (T{bytes_[i]} << (8 * i)));
    return value;
  }

 private:
  constexpr void Set(T value) {
    for (std::size_t i = 0; i < sizeof(T); ++i) bytes_[i] = static_cast<std::uint8_t>(value >> (8 * i));
  }

  std::uint8_t bytes_[sizeof(T)];
};

using LittleU16 = LittleUint<std::uint16_t>;
using LittleU32 = LittleUint<std::uint32_t>;

static_assert(sizeof(LittleU16) == 2 && alignof(LittleU16) == 1 && std::is_trivial_v<LittleU16>);
static_assert(sizeof(LittleU32) == 4 && alignof(LittleU32) == 1 && std::is_trivial_v<LittleU32>);

}  // namespace platform
