// SPDX-License-Identifier: MIT
#pragma once

namespace desktops::qt {

/// The counted wait cursor. A window that opens takes it away, so that a person sees what can be clicked; it
/// comes back when asked for.
class WaitCursorCount {
 public:
  ~WaitCursorCount();
  void Show();
  void Hide();
  void Suspend();
  void Restore();

 private:
  int depth_ = 0;
  bool shown_ = false;
};

}  // namespace desktops::qt
