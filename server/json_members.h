// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>

// Members of objects that others wrote: what is missing or of another type counts as empty.

namespace alertserver {

using Json = nlohmann::ordered_json;

std::string TextOf(const Json& object, const char* member);
std::uint64_t NumberOf(const Json& object, const char* member);
/// The same, where a greater number than that counts as 0.
std::uint32_t SmallNumberOf(const Json& object, const char* member);
bool FlagOf(const Json& object, const char* member);
/// A list or an object; an empty one of the kind for anything else.
const Json& ListOf(const Json& object, const char* member);
const Json& ObjectOf(const Json& object, const char* member);

/// The text of a file, an object; nothing that is nested deeper than any file of ours. Null where it is none.
Json ParseObject(const std::string& text);
/// As files are written; bytes that are no UTF-8 become U+FFFD.
std::string DumpJson(const Json& file);

}  // namespace alertserver
