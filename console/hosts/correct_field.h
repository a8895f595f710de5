// SPDX-License-Identifier: MIT
#pragma once

#include "companions/agentui/corrections.h"
#include "console/hosts/record_windows.h"
#include "console/site/overview.h"

namespace hosts {

/// What became of a wish to correct a field.
enum class Corrected {
  kNotOpened,  ///< which was told
  kTurned,     ///< the window in front has the field
  kOpened      ///< a window was opened for it, and has closed again
};

/// Whether there is a window with the field.
bool HasWindow(const agentui::Correction& wanted);

/// Opens the window with the focus on the field, over the one in front (`owner` where there is none). The record's own
/// window, where that is in front, is turned there instead: edits that are not stored yet stay in it.
Corrected CorrectField(RecordWindows& windows, const site::Overview& site, const agentui::Correction& wanted,
                       ui::Window* owner);

}  // namespace hosts
