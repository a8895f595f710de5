// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

/// The length of the longest prefix of `text` of at most `limit` bytes that does not end inside a UTF-8
/// sequence (RFC 3629). Bytes that are no UTF-8 count as sequences of one byte.
std::size_t Utf8Prefix(std::string_view text, std::size_t limit);

/// The start of the UTF-8 sequence before `pos`, or 0; the end of the one at `pos`, or the text's size.
std::size_t Utf8Previous(std::string_view text, std::size_t pos);
std::size_t Utf8Next(std::string_view text, std::size_t pos);

/// Appends one code point in UTF-8; U+FFFD in the place of a surrogate or of what is no code point.
void Utf8Append(std::string& text, char32_t code_point);

/// Compares without regard to case; only ASCII letters have one here.
bool EqualIgnoringCase(std::string_view a, std::string_view b);
/// The order that goes with it, by bytes.
bool LessIgnoringCase(std::string_view a, std::string_view b);
/// True when `text` begins with `prefix` without regard to case.
bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix);

}  // namespace platform
