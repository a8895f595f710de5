// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace alertserver {

/// A line as people may read it, whoever wrote it: ends of line fall away at its end, control characters and bytes that
/// are no UTF-8 are written as "\x1B". At most `limit` bytes of `text` are looked at.
std::string PlainLine(std::string_view text, std::size_t limit);

/// The text with U+FFFD in the place of bytes that are no UTF-8.
std::string ValidUtf8(std::string_view text);

}  // namespace alertserver
