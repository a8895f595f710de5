// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <utility>

namespace lab {

/// Milliseconds of a clock that only goes forward; where it starts means nothing.
using Millis = std::int64_t;

/// One side of a conversation without the line under it: what arrives is handed in with the time, what is to be sent is
/// fetched when it is due. So a conversation can be had in a test without waiting for anything.
class Session {
 public:
  virtual ~Session() = default;

  /// The line was opened.
  virtual void Begin(Millis) {}
  virtual void Take(std::string_view bytes, Millis now) = 0;
  /// Time went by. Called before each look at what is due.
  virtual void Pass(Millis) {}
  /// The other side put the line down.
  virtual void HangUp() {}
  /// True while something will happen without a byte arriving.
  virtual bool Waits() const { return !outbox_.empty(); }

  /// Everything that is to be sent by now, which is then forgotten.
  std::string Due(Millis now);
  /// True when the line is to be put down.
  bool IsOver() const { return over_ && outbox_.empty(); }

 protected:
  /// In the order in which they are said, whatever the times.
  void Say(std::string bytes, Millis at) { outbox_.emplace_back(at, std::move(bytes)); }
  void SayNothingMore() { outbox_.clear(); }
  /// After what was said so far.
  void End() { over_ = true; }

 private:
  std::deque<std::pair<Millis, std::string>> outbox_;
  bool over_ = false;
};

}  // namespace lab
