// SPDX-License-Identifier: MIT
#include "server/plain_text.h"

#include <cstdio>

#include "platform/base/utf8.h"

namespace alertserver {
namespace {

void AppendEscaped(std::string& text, char byte) {
  char escaped[8];
  std::snprintf(escaped, sizeof escaped, "\\x%02X", static_cast<unsigned>(static_cast<unsigned char>(byte)));
  text += escaped;
}

bool IsAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }
bool IsShown(char byte) { return IsAscii(byte) && byte >= ' ' && byte != '\x7F'; }

}  // namespace

std::string PlainLine(std::string_view text, std::size_t limit) {
  while (text.ends_with('\n') || text.ends_with('\r')) text.remove_suffix(1);
  text = text.substr(0, platform::Utf8Prefix(text, limit));
  std::string line;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t next = platform::Utf8Next(text, at);
    if (next - at > 1 || IsShown(text[at]))
      line += text.substr(at, next - at);
    else
      AppendEscaped(line, text[at]);
    at = next;
  }
  return line;
}

std::string ValidUtf8(std::string_view text) {
  std::string valid;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t next = platform::Utf8Next(text, at);
    if (next - at > 1 || IsAscii(text[at]))
      valid += text.substr(at, next - at);
    else
      platform::Utf8Append(valid, 0xFFFD);
    at = next;
  }
  return valid;
}

}  // namespace alertserver
