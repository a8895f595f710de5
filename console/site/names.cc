// SPDX-License-Identifier: MIT
#include "console/site/names.h"

#include <algorithm>
#include <array>

#include "platform/base/utf8.h"

namespace site {
namespace {

/// Marks that turn the direction of writing and characters without width: a name with them can pass for another.
constexpr std::array<std::string_view, 18> kDeceptive = {
    "\u200B", "\u200C", "\u200D", "\u200E", "\u200F", "\u2028", "\u2029", "\u202A", "\u202B",
    "\u202C", "\u202D", "\u202E", "\u2060", "\u2066", "\u2067", "\u2068", "\u2069", "\uFEFF"};

}  // namespace

// The controls beyond ASCII are U+0080 to U+009F.
Piece Classify(std::string_view sequence) {
  const auto first = static_cast<unsigned char>(sequence.front());
  if (sequence.size() == 1 && first >= 0x80) return Piece::kNoUtf8;
  if (first < 0x20 || first == 0x7F) return Piece::kControl;
  if (first == 0xC2 && static_cast<unsigned char>(sequence[1]) < 0xA0) return Piece::kControl;
  const bool deceptive = std::find(kDeceptive.begin(), kDeceptive.end(), sequence) != kDeceptive.end();
  return deceptive ? Piece::kControl : Piece::kText;
}

bool HasUnprintable(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t next = platform::Utf8Next(text, at);
    if (Classify(text.substr(at, next - at)) != Piece::kText) return true;
    at = next;
  }
  return false;
}

std::string NameProblem(const std::string& what, const std::string& text, std::size_t limit) {
  const std::string has = what + " has 1 to " + std::to_string(limit) + " bytes";
  if (text.empty()) return has + ": \"\" has none";
  if (text.size() > limit) return has + ": \"" + text + "\" has " + std::to_string(text.size());
  if (HasUnprintable(text))
    return what + " holds no control characters and is UTF-8: correct \"" + text + "\"";
  if (text.find_first_not_of(' ') == std::string::npos)
    return what + " is more than blanks: nobody could tell it from another";
  return {};
}

}  // namespace site
