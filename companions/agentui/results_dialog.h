// SPDX-License-Identifier: MIT
#pragma once

#include "companions/agentui/report.h"
#include "platform/ui/window.h"

namespace agentui {

/// Runs the dialog that tells what became of a test.
void ShowTestResults(platform::ui::Window* parent, const Report& report);

}  // namespace agentui
