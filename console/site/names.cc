// SPDX-License-Identifier: MIT
#include "console/site/names.h"

#include <algorithm>
#include <array>

#include "platform/base/guid.h"
#include "platform/base/utf8.h"

namespace site {
namespace {

/// Code points that nobody sees, or that turn the direction of writing: a name with them can pass for another. First and
/// last of each range.
constexpr std::array<std::array<char32_t, 2>, 11> kDeceptive = {{{0x00AD, 0x00AD},
                                                                 {0x034F, 0x034F},
                                                                 {0x061C, 0x061C},
                                                                 {0x115F, 0x1160},
                                                                 {0x180B, 0x180E},
                                                                 {0x200B, 0x200F},
                                                                 {0x2028, 0x202E},
                                                                 {0x2060, 0x206F},
                                                                 {0x3164, 0x3164},
                                                                 {0xFEFF, 0xFEFF},
                                                                 {0xE0000, 0xE0FFF}}};
/// Those that look like blanks.
constexpr std::array<std::string_view, 16> kBlanks = {
    " ",      "\u00A0", "\u1680", "\u2000", "\u2001", "\u2002", "\u2003", "\u2004",
    "\u2005", "\u2006", "\u2007", "\u2008", "\u2009", "\u200A", "\u202F", "\u3000"};

bool IsDeceptive(std::string_view sequence) {
  const char32_t code = CodePoint(sequence);
  return std::ranges::any_of(kDeceptive,
                             [code](const auto& range) { return range[0] <= code && code <= range[1]; });
}

bool IsBlank(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t next = platform::Utf8Next(text, at);
    if (std::ranges::find(kBlanks, text.substr(at, next - at)) == kBlanks.end()) return false;
    at = next;
  }
  return true;
}

}  // namespace

char32_t CodePoint(std::string_view sequence) {
  const auto first = static_cast<unsigned char>(sequence.front());
  char32_t code = sequence.size() == 1 ? first : first & (0x7FU >> sequence.size());
  for (const char byte : sequence.substr(1)) code = code << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
  return code;
}

// The controls beyond ASCII are U+0080 to U+009F.
Piece Classify(std::string_view sequence) {
  const auto first = static_cast<unsigned char>(sequence.front());
  if (sequence.size() == 1 && first >= 0x80) return Piece::kNoUtf8;
  if (first < 0x20 || first == 0x7F) return Piece::kControl;
  if (first == 0xC2 && static_cast<unsigned char>(sequence[1]) < 0xA0) return Piece::kControl;
  return first >= 0x80 && IsDeceptive(sequence) ? Piece::kControl : Piece::kText;
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
  if (IsBlank(text)) return what + " is more than blanks: nobody could tell it from another";
  if (platform::GUID::Parse(text))
    return what + " does not look like an identity, by which others are named: choose another";
  return {};
}

}  // namespace site
