// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace alerting {

/// Breaks a message into lines for services that need them: a carriage return and a line feed after the last
/// blank before column `line_width`, or before the character that reaches it where a word is longer. The
/// result is cut to its first `max_length` bytes (never inside a UTF-8 sequence). A width of 0 breaks
/// nothing.
std::string WrapMessage(std::string_view text, std::size_t line_width, std::size_t max_length);

}  // namespace alerting
