// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "server/report.h"
#include "server/transport.h"

namespace alertserver {

/// What one try came to.
struct RunResult {
  Verdict verdict = Verdict::kNotPossible;
  std::string explanation, field;
  std::vector<ReportStep> steps;
};

/// Runs the steps in order, times each, and stops at the first that fails. The verdict is the worst of those that steps
/// settled; where no step settled any, nothing is known to have been sent and the verdict says so. A step that throws has
/// failed.
RunResult RunSteps(const std::vector<Step>& steps, Context& context);

}  // namespace alertserver
