// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

#include "platform/base/little_endian.h"

namespace platform {

/// A 16-byte identity in the platform's layout: u32, u16, u16 little-endian, then eight bytes (the layout of
/// RFC 4122's fields with the first three byte-swapped). The all-zero GUID means "none". Trivial and of
/// alignment 1, so that it can be a record member and pass through a C call by value.
struct GUID {
  LittleU32 data1;
  LittleU16 data2;
  LittleU16 data3;
  std::uint8_t data4[8];

  bool IsNull() const;
  /// "{3217DA53-ADD1-11CF-8137-000000000001}", upper-case hexadecimal.
  std::string ToString() const;
  /// Reads the text form, with or without braces, in either case; nothing for any other text.
  static std::optional<GUID> Parse(std::string_view text);
  /// A fresh random GUID (RFC 4122 version 4).
  static GUID Generate();

  /// Orders by the bytes as stored, which is all that a key needs.
  friend std::strong_ordering operator<=>(const GUID& a, const GUID& b) {
    return std::memcmp(&a, &b, sizeof(GUID)) <=> 0;
  }
  friend bool operator==(const GUID& a, const GUID& b) { return std::memcmp(&a, &b, sizeof(GUID)) == 0; }
};

static_assert(sizeof(GUID) == 16 && alignof(GUID) == 1 && std::is_trivial_v<GUID>);

constexpr GUID kNullGuid{};

}  // namespace platform
