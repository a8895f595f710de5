// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/base/fixed_text.h"
#include "platform/base/guid.h"
#include "platform/base/little_endian.h"

namespace dbconfig {

enum class FieldKind : std::uint8_t { kText, kNumber, kFlag, kId };

/// A field of a record, and the name that it bears in the configuration file.
struct Field {
  const char* name = nullptr;  ///< null for a field that the record does not have
  FieldKind kind = FieldKind::kText;
  std::size_t offset = 0;
  std::size_t width = 0;
};

using Fields = std::span<const Field>;

/// How a member of that type is written, unless its description says otherwise.
template <class Member>
inline constexpr FieldKind kKindOf = FieldKind::kText;
template <>
inline constexpr FieldKind kKindOf<platform::LittleU16> = FieldKind::kNumber;
template <>
inline constexpr FieldKind kKindOf<platform::LittleU32> = FieldKind::kNumber;
template <>
inline constexpr FieldKind kKindOf<platform::GUID> = FieldKind::kId;

}  // namespace dbconfig

// Descriptions of members: under another name, as true or false, under their own name.
#define DBCONFIG_FIELD_AS(name, Record, member)                                                           \
  ::dbconfig::Field {                                                                                     \
    name, ::dbconfig::kKindOf<decltype(Record::member)>, offsetof(Record, member), sizeof(Record::member) \
  }
#define DBCONFIG_FLAG(name, Record, member) \
  ::dbconfig::Field { name, ::dbconfig::FieldKind::kFlag, offsetof(Record, member), sizeof(Record::member) }
#define DBCONFIG_FIELD(Record, member) DBCONFIG_FIELD_AS(#member, Record, member)
