// SPDX-License-Identifier: MIT
#include "server/command_line.h"

namespace alertserver {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

/// Takes the word at the beginning of the text away. False where a quotation mark is not closed.
bool TakeWord(std::string_view& text, std::string& word) {
  bool quoted = false;
  std::size_t at = 0;
  for (; at < text.size() && (quoted || !IsBlank(text[at])); ++at) {
    const bool escaped = text.substr(at).starts_with("\\\"");
    if (escaped)
      word += text[++at];
    else if (text[at] == '"')
      quoted = !quoted;
    else
      word += text[at];
  }
  text.remove_prefix(at);
  return !quoted;
}

}  // namespace

std::optional<std::vector<std::string>> SplitCommandLine(std::string_view text) {
  std::vector<std::string> words;
  for (;;) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    if (text.empty()) return words;
    if (!TakeWord(text, words.emplace_back())) return std::nullopt;
  }
}

std::string JoinForShow(const std::vector<std::string>& words) {
  std::string line;
  for (const std::string& word : words) line += (line.empty() ? "\"" : " \"") + word + '"';
  return line;
}

}  // namespace alertserver
