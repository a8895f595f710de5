// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/edit.h"

namespace platform::ui {

/// Up and down arrows beside a number field (the buddy). A step writes the new number into the buddy as a
/// person's change. A text that is no number counts as the lower end.
class Spin : public Control {
 public:
  Spin(Form& form, int id, Edit& buddy, bool wraps) : Control(form, id, {}), buddy_(buddy), wraps_(wraps) {}

  Edit& Buddy() const { return buddy_; }
  bool Wraps() const { return wraps_; }
  int Lower() const { return lower_; }
  int Upper() const { return upper_; }
  void SetRange(int lower, int upper);
  bool TakesFocus() const override { return false; }

  /// A person stepped up (+1) or down (-1); past an end it wraps or stays.
  void OnStep(int direction);

 private:
  Edit& buddy_;
  bool wraps_;
  int lower_ = 0, upper_ = 100;
};

}  // namespace platform::ui
