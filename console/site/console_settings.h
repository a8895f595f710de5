// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace site {

using Json = nlohmann::ordered_json;

/// What a site's consoles agree on and no record has a field for: `console.json` in the data directory, an object. Empty
/// where the file is missing or is none.
Json ReadConsoleSettings();
/// Sets one member of it and leaves the others. "" or why that failed.
std::string WriteConsoleSetting(const std::string& name, const Json& value);

}  // namespace site
