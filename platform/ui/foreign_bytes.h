// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace platform::ui {

/// Bytes that somebody else wrote: no offset or size in them is to be believed. Nothing is ever read beyond their end.
using ForeignBytes = std::span<const std::uint8_t>;

/// The bytes from `offset` on, empty beyond the end.
inline ForeignBytes From(ForeignBytes bytes, std::size_t offset) {
  return offset <= bytes.size() ? bytes.subspan(offset) : ForeignBytes();
}

/// At most `size` of them from `offset` on.
inline ForeignBytes Part(ForeignBytes bytes, std::size_t offset, std::size_t size) {
  const ForeignBytes rest = From(bytes, offset);
  return rest.first(std::min(size, rest.size()));
}

/// The number stored at `at`, lowest byte first; 0 where it is not whole.
template <std::size_t kSize>
std::uint32_t Number(ForeignBytes bytes, std::size_t at) {
  const ForeignBytes part = Part(bytes, at, kSize);
  std::uint32_t number = 0;
  for (std::size_t i = 0; part.size() == kSize && i < kSize; ++i)
    number |= static_cast<std::uint32_t>(part[i]) << (8 * i);
  return number;
}

inline std::uint32_t U16(ForeignBytes bytes, std::size_t at) { return Number<2>(bytes, at); }
inline std::uint32_t U32(ForeignBytes bytes, std::size_t at) { return Number<4>(bytes, at); }

}  // namespace platform::ui
