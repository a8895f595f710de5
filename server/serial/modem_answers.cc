// SPDX-License-Identifier: MIT
#include "server/serial/modem_answers.h"

#include <utility>

namespace alertserver {
namespace {

using Kind = ModemAnswer::Kind;

constexpr std::size_t kMostKept = 1024;

struct Word {
  std::string_view text;
  Kind kind;
  bool may_go_on;  ///< a rate or the like may follow
};

constexpr Word kWords[] = {
    {"OK", Kind::kOk, false},
    {"CONNECT", Kind::kConnect, true},
    {"NO CARRIER", Kind::kNoCarrier, false},
    {"ERROR", Kind::kError, false},
    {"NO DIALTONE", Kind::kNoDialTone, false},
    {"NO DIAL TONE", Kind::kNoDialTone, false},
    {"BUSY", Kind::kBusy, false},
    {"NO ANSWER", Kind::kNoAnswer, false},
    // What modems say that may not dial a number again so soon.
    {"DELAYED", Kind::kBarred, true},
    {"BLACKLISTED", Kind::kBarred, true},
    // The short form, for modems that were told ATV0.
    {"0", Kind::kOk, false},
    {"1", Kind::kConnect, false},
    {"3", Kind::kNoCarrier, false},
    {"4", Kind::kError, false},
    {"5", Kind::kConnect, false},
    {"6", Kind::kNoDialTone, false},
    {"7", Kind::kBusy, false},
    {"8", Kind::kNoAnswer, false},
    {"10", Kind::kConnect, false},
};

std::optional<ModemAnswer> AnswerIn(std::string_view line) {
  for (const auto& [text, kind, may_go_on] : kWords) {
    if (!line.starts_with(text)) continue;
    const bool is_all = line.size() == text.size();
    if (is_all || (may_go_on && (line[text.size()] == ' ' || line[text.size()] == '/')))
      return ModemAnswer{kind, std::string(line)};
  }
  return std::nullopt;
}

}  // namespace

void ModemAnswers::Take(std::string_view bytes) {
  bytes_ += bytes;
  if (bytes_.size() > kMostKept) bytes_.erase(0, bytes_.size() - kMostKept);
}

std::optional<ModemAnswer> ModemAnswers::Next() {
  std::size_t end;
  while ((end = bytes_.find_first_of("\r\n")) != bytes_.npos) {
    const std::string line = bytes_.substr(0, end);
    // The LF behind the CR belongs to the answer, not to what follows it.
    const bool has_pair = bytes_.compare(end, 2, "\r\n") == 0;
    bytes_.erase(0, end + (has_pair ? 2 : 1));
    if (auto answer = AnswerIn(line)) return answer;
  }
  return std::nullopt;
}

std::string ModemAnswers::TakeRest() { return std::exchange(bytes_, ""); }

}  // namespace alertserver
