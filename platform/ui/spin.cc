// SPDX-License-Identifier: MIT
#include "platform/ui/spin.h"

#include <algorithm>
#include <charconv>

namespace platform::ui {

void Spin::SetRange(int lower, int upper) {
  lower_ = lower;
  upper_ = std::max(lower, upper);
  Notify(Change::kItems);
}

void Spin::OnStep(int direction) {
  if (!WithinReach()) return;
  const std::string& text = buddy_.Text();
  int value = lower_;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) value = lower_;
  value = std::clamp(value, lower_, upper_);
  const bool at_end = direction > 0 ? value == upper_ : value == lower_;
  if (!at_end) {
    value += direction > 0 ? 1 : -1;
  } else if (wraps_) {
    value = direction > 0 ? lower_ : upper_;
  }
  buddy_.OnStepped(std::to_string(value));
}

}  // namespace platform::ui
