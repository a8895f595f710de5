// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace dbconfig {

/// The console's string with that identifier (resources/strings.def), or "".
constexpr const char* StringText(int identifier) {
  switch (identifier) {
#define ALERTING_STRING(name, id, text) \
  case id:                              \
    return text;
#include "resources/strings.def"
#undef ALERTING_STRING
    default:
      return "";
  }
}

inline constexpr std::uint32_t kKeywordCount = 13;

/// A field of an alert that a message can carry, "<User Name>"; "" for an identifier that names none.
constexpr const char* KeywordName(std::uint32_t id) {
  return id >= 1 && id <= kKeywordCount ? StringText(static_cast<int>(200 + id)) : "";
}
/// What stands for the keyword in a stored text, "%s".
constexpr const char* KeywordFormat(std::uint32_t id) {
  return id >= 1 && id <= kKeywordCount ? StringText(static_cast<int>(220 + id)) : "";
}
/// What people call a service type, by the type that records hold (type code plus 1).
constexpr const char* ServiceTypeName(std::uint32_t record_type) {
  return record_type >= 1 && record_type <= 15 ? StringText(static_cast<int>(99 + record_type)) : "";
}

}  // namespace dbconfig
