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

/// What people call a service type, by the type that records hold (type code plus 1).
constexpr const char* ServiceTypeName(std::uint32_t record_type) {
  return record_type >= 1 && record_type <= 15 ? StringText(static_cast<int>(99 + record_type)) : "";
}

}  // namespace dbconfig
