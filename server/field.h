// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace alertserver {

/// What is to be corrected.
enum class Field {
  kNothing,
#define ALERTSERVER_FIELD(enumerator, name) enumerator,
#include "server/fields.def"
#undef ALERTSERVER_FIELD
};

/// The names of all fields in a report, kNothing's "" first.
inline constexpr std::string_view kFieldNames[] = {
    "",
#define ALERTSERVER_FIELD(enumerator, name) name,
#include "server/fields.def"
#undef ALERTSERVER_FIELD
};

constexpr std::string_view NameOf(Field field) { return kFieldNames[static_cast<std::size_t>(field)]; }

/// True for what belongs to the modem that a try uses, of which a service has two and a site several: the modem's own record,
/// and the speed that the service keeps with it.
constexpr bool IsOfModem(Field field) {
  return field == Field::kBaudRate || NameOf(field).starts_with("modems.");
}

}  // namespace alertserver
