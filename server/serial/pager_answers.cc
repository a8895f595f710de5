// SPDX-License-Identifier: MIT
#include "server/serial/pager_answers.h"

#include <cctype>
#include <utility>

namespace alertserver {
namespace {

using Kind = PagerAnswer::Kind;

constexpr std::size_t kMostKept = 1024;
constexpr std::string_view kWhoIsIt = "ID=";

struct Sign {
  std::string_view text;
  Kind kind;
};
constexpr Sign kSigns[] = {
    {"\x06", Kind::kAccepted},         {"\x15", Kind::kAgain},
    {"\x1E", Kind::kRejected},         {"\x1B[p", Kind::kGoAhead},
    {"\x1B\x04", Kind::kDisconnected}, {"\x04", Kind::kDisconnected},
};

bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

int CodeOf(std::string_view text) {
  if (text.size() < 3 || !IsDigit(text[0]) || !IsDigit(text[1]) || !IsDigit(text[2])) return 0;
  if (text.size() > 3 && IsDigit(text[3])) return 0;
  return (text[0] - '0') * 100 + (text[1] - '0') * 10 + (text[2] - '0');
}

}  // namespace

void PagerAnswers::Take(std::string_view bytes) {
  for (const char c : bytes) {
    const char seven_bits = static_cast<char>(c & 0x7F);
    if (seven_bits != '\n' && seven_bits != 0) bytes_ += seven_bits;
  }
  if (bytes_.size() > kMostKept) bytes_.erase(0, bytes_.size() - kMostKept);
}

/// "ID=" is the one answer that need not end with CR.
std::optional<PagerAnswer> PagerAnswers::Next() {
  for (;;) {
    const std::size_t end = bytes_.find('\r'), asked = bytes_.find(kWhoIsIt);
    if (asked < end) {
      bytes_.erase(0, asked + kWhoIsIt.size());
      return Make(Kind::kWhoIsIt);
    }
    if (end == bytes_.npos) return std::nullopt;
    const std::string line = bytes_.substr(0, end);
    bytes_.erase(0, end + 1);
    if (auto answer = TakeLine(line)) return answer;
  }
}

/// A sign stands alone in its line, or behind a message that no CR parts from it.
std::optional<PagerAnswer> PagerAnswers::TakeLine(std::string_view line) {
  for (const auto& [sign, kind] : kSigns) {
    if (!line.ends_with(sign)) continue;
    TakeLine(line.substr(0, line.size() - sign.size()));
    return Make(kind);
  }
  if (!line.empty() && text_.size() + line.size() < kMostKept)
    text_ += (text_.empty() ? "" : " / ") + std::string(line);
  return std::nullopt;
}

PagerAnswer PagerAnswers::Make(Kind kind) {
  const std::string text = std::exchange(text_, "");
  return {kind, CodeOf(text), text};
}

}  // namespace alertserver
