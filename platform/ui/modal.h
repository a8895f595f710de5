// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/window.h"

namespace platform::ui {

/// Results of modal windows.
constexpr int kOk = 1;
constexpr int kCancel = 2;

/// What a dialog and a property sheet share: a modal run with a result.
class Modal {
 public:
  virtual ~Modal() = default;

  /// Shows the window on the current desktop until it has ended, and answers the result.
  int RunModal();
  /// Ends the run; once it has ended, its first result stands.
  void EndModal(int result);
  bool Ended() const { return ended_; }
  int Result() const { return result_; }

  virtual Window& AsWindow() = 0;
  /// Makes and unmakes the window; called by RunModal's desktop around the run. A run starts not ended, but
  /// OnInitDialog may end it at once.
  virtual void OpenWindow() = 0;
  virtual void CloseWindow() = 0;
  /// The close box or the desktop's going down: as Cancel.
  virtual void OnCloseRequest() { EndModal(kCancel); }

 private:
  bool ended_ = false;
  int result_ = kCancel;
};

}  // namespace platform::ui
