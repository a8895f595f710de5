// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "companions/netpath/netpath.h"
#include "platform/ui/window.h"

namespace alerting {

namespace ui = platform::ui;

/// The size of a buffer for a path, terminating zero included.
inline constexpr std::size_t kPathSize = netpath::kPathBufferSize;

/// What became of a path on its way into universal form.
enum PathCode : int {
  kPathDone = 0,
  kPathInTree = 1,        ///< leads through a directory tree instead of a share
  kPathNotUniversal = 2,  ///< has no universal form
  kPathInvalid = 3        ///< missing, or longer than a buffer holds
};

/// Brings a path into its universal network form (UNC), or as near to it as can be, so that alert managers on other
/// machines find the file. `out_path` holds kPathSize bytes and may be `in_path` itself; it stays as it is where the
/// answer is kPathInvalid.
PathCode MakeUniversalPath(char* out_path, const char* in_path);

/// The same in place. A path that is too long stays as it is.
PathCode ToUniversal(std::string& path);

/// Tells what a code other than kPathDone means: after a file was chosen.
void ShowPathWarning(int code, ui::Window* parent = nullptr);

/// Asks whether to go on all the same: before a path is saved or tried. True for kPathDone, without asking.
bool ConfirmPathWarning(int code, ui::Window* parent = nullptr);

}  // namespace alerting
