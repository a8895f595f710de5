// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <string>
#include <string_view>

#include "server/serial/serial_line.h"
#include "server/transport.h"

namespace alertserver {

/// What is said over a line while the test has time, noted in its transcript.
class Conversation {
 public:
  using Limit = std::chrono::milliseconds;

  Conversation(SerialLine& line, Context& context) : line_(line), context_(context) {}

  /// False when the line did not take it.
  bool Say(std::string_view bytes);
  /// The next answer that `answers` finds in what arrives; nothing when none came in time.
  template <class Answers>
  auto Await(Answers& answers, Limit limit) -> decltype(answers.Next());
  /// Says nothing for so long, and throws away what arrives.
  void KeepSilent(Limit limit);
  Limit Left() const { return context_.Left(); }

 private:
  using Clock = std::chrono::steady_clock;
  std::string Hear(Clock::time_point end);

  SerialLine& line_;
  Context& context_;
};

template <class Answers>
auto Conversation::Await(Answers& answers, Limit limit) -> decltype(answers.Next()) {
  const Clock::time_point end = Clock::now() + std::min(limit, Left());
  for (;;) {
    if (auto answer = answers.Next()) return answer;
    const std::string bytes = Hear(end);
    if (bytes.empty()) return {};
    answers.Take(bytes);
  }
}

}  // namespace alertserver
