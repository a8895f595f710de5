// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "console/site/laboratory_file.h"

// The way to the laboratory and back, in steps between which a console may be ended: each changes one record or one file, whole.

namespace site {

using LaboratoryStep = std::function<void()>;

/// Each throws a Failure where its record could not be changed, or somebody changed it since it was looked at.
std::vector<LaboratoryStep> StepsToLaboratory(const LaboratoryChanges& changes);
/// Each puts back what is still as the laboratory left it, also where it was put back before. What somebody changed meanwhile
/// stays, and is told in `left`. Each throws a Failure where it could not be done.
std::vector<LaboratoryStep> StepsBack(const LaboratoryChanges& changes, std::vector<std::string>& left);

}  // namespace site
