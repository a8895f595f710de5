// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <utility>

namespace test_support {

/// A text with its selection between "[" and "]", or with the caret at "|".
inline std::string Marked(std::string text, std::pair<std::size_t, std::size_t> selection) {
  const auto [start, end] = selection;
  if (start == end) return text.insert(start, "|");
  return text.insert(end, "]").insert(start, "[");
}

/// Puts into the field what Marked would say of it.
template <class Edit>
void Put(Edit& field, std::string marked) {
  const std::size_t start = marked.find_first_of("|[");
  marked.erase(start, 1);
  const std::size_t end = std::min(marked.find(']'), marked.size());
  const bool selected = end < marked.size();
  if (selected) marked.erase(end, 1);
  field.SetText(marked);
  field.SetFocus();
  field.SetSelection(start, selected ? end : start);
}

}  // namespace test_support
