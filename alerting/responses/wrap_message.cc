// SPDX-License-Identifier: MIT
#include "alerting/responses/wrap_message.h"

#include "platform/base/utf8.h"

namespace alerting {
namespace {

constexpr std::string_view kLineBreak = "\r\n";

bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// Where the line that reached its width at `pos` is broken: behind the nearest of the `reach` characters
/// before `pos` that is blank, else at `pos`.
std::size_t BreakPosition(std::string_view text, std::size_t pos, std::size_t reach) {
  std::size_t end = pos;
  for (std::size_t i = 0; i < reach && end > 0; ++i) {
    const std::size_t start = platform::Utf8Previous(text, end);
    if (IsBlank(text[start])) return end;
    end = start;
  }
  return pos;
}

}  // namespace

std::string WrapMessage(std::string_view text, std::size_t line_width, std::size_t max_length) {
  std::string wrapped(text);
  std::size_t column = 0;
  for (std::size_t pos = 0; line_width > 0 && pos < wrapped.size(); pos = platform::Utf8Next(wrapped, pos)) {
    ++column;
    if (wrapped[pos] == '\r' || wrapped[pos] == '\n') column = 0;
    if (column < line_width) continue;
    // The character that now begins the new line is passed over and not counted.
    pos = BreakPosition(wrapped, pos, line_width - 1);
    wrapped.insert(pos, kLineBreak);
    pos += kLineBreak.size();
    column = 0;
  }
  wrapped.resize(platform::Utf8Prefix(wrapped, max_length));
  return wrapped;
}

}  // namespace alerting
