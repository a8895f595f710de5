// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace platform {

/// The object that a file's text holds; null for any other text, and for one that is nested deeper than any file that is
/// written here: what copies or writes it would run out of stack.
template <class Json>
Json ParseJsonObject(const std::string& text) {
  constexpr int kMaxDepth = 32;
  bool too_deep = false;
  const auto is_shallow = [&too_deep](int depth, typename Json::parse_event_t, Json&) {
    too_deep = too_deep || depth > kMaxDepth;
    return !too_deep;
  };
  Json file = Json::parse(text, is_shallow, false);
  if (too_deep || !file.is_object()) return Json();
  return file;
}

}  // namespace platform
