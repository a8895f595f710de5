// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "companions/agentui/corrections.h"
#include "companions/agentui/report.h"
#include "platform/ui/window.h"

namespace agentui {

/// All of a report for a person to read, line by line.
std::string ReportText(const Report& report);
/// Runs the dialog that tells what became of a test, and what "Correct..." opens in its place.
void ShowTestResults(platform::ui::Window* parent, const Report& report, const TestSubject& subject = {});

}  // namespace agentui
