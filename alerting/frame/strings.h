// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/base/module.h"

namespace alerting {

/// Identifiers of the library's string table, resources/strings.def.
enum StringId : int {
#define ALERTING_STRING(name, id, text) name = id,
#include "resources/strings.def"
#undef ALERTING_STRING
};

/// The library's own resource context: its title, strings and pictures.
platform::Module& TheModule();

/// A text of the table, or "" for an identifier that it does not have.
const std::string& Text(int id);

}  // namespace alerting
