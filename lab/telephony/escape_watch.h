// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "lab/session.h"

namespace lab {

/// Tells "+++" with silence before and behind it, which calls a modem back to its commands, from data.
class EscapeWatch {
 public:
  explicit EscapeWatch(Millis guard) : guard_(guard) {}

  /// The connection was made.
  void Begin(Millis now) { held_.clear(), last_ = now; }
  /// Answers what is data; pluses that may turn out an escape are held back.
  std::string Take(std::string_view bytes, Millis now);
  /// True once, when an escape was given and the silence behind it is over.
  bool Escaped(Millis now);
  bool Waits() const { return held_.size() == 3; }

 private:
  const Millis guard_;
  std::string held_;
  Millis last_ = 0;
};

}  // namespace lab
