// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "desktops/scripted/script.h"

namespace stories {

/// The desktop that the stories run on: each suite is built once for every desktop, with its own
/// MakeTestDesktop. It is the current platform::ui::Desktop while it lives; the clipboard is reached there.
class TestDesktop {
 public:
  virtual ~TestDesktop() = default;

  virtual desktops::Script& Script() = 0;
  /// Leaves the clipboard without any text.
  virtual void ClearClipboard() = 0;
  virtual void SetSystemMajorVersion(int version) = 0;
  /// The help text shown last, or "".
  virtual std::string LastHelpText() = 0;
  /// What is cut in the window in front; nothing where no pixels are shown.
  virtual std::vector<std::string> CutControls() = 0;
  virtual bool ShowsWaitCursor() = 0;
  /// The file of the sound that is playing, or "". Every existing file can be played.
  virtual std::string PlayingSound() = 0;
  /// The sound that is playing comes to its end.
  virtual void FinishSound() = 0;
};

std::unique_ptr<TestDesktop> MakeTestDesktop();

}  // namespace stories
