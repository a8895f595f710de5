// SPDX-License-Identifier: MIT
#pragma once

namespace desktops::qt {

/// The counted wait cursor. A window that opens takes it away, so that a person sees what can be clicked; it
/// comes back when the window has gone.
class WaitCursorCount {
 public:
  ~WaitCursorCount();
  void Show();
  void Hide();
  void Restore();

  /// Forgets the waits so far while it lives: a window opened meanwhile counts its own.
  class Uncovered {
   public:
    explicit Uncovered(WaitCursorCount& count);
    ~Uncovered();
    Uncovered(const Uncovered&) = delete;
    Uncovered& operator=(const Uncovered&) = delete;

   private:
    WaitCursorCount& count_;
    int depth_;
  };

 private:
  void TakeAway();

  int depth_ = 0;
  bool shown_ = false;
};

}  // namespace desktops::qt
