// SPDX-License-Identifier: MIT
#include "lab/telephony/escape_watch.h"

#include <utility>

namespace lab {

std::string EscapeWatch::Take(std::string_view bytes, Millis now) {
  constexpr std::string_view kEscape = "+++";
  const std::string all = held_ + std::string(bytes);
  const bool was_silent = !held_.empty() || now - last_ >= guard_;
  last_ = now;
  held_.clear();
  if (!was_silent || !kEscape.starts_with(all)) return all;
  held_ = all;
  return "";
}

bool EscapeWatch::Escaped(Millis now) {
  if (!Waits() || now - last_ < guard_) return false;
  held_.clear();
  return true;
}

}  // namespace lab
