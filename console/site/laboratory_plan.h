// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "console/site/laboratory_file.h"

namespace site {

/// What has to be changed so that the first service of each type, which is the one that a site starts with, reaches the
/// laboratory. Nothing is changed yet.
struct LaboratoryPlan {
  LaboratoryChanges changes;          ///< without the settings, which wait for the laboratory's ports
  std::vector<std::string> replaced;  ///< values that a person entered and that give way meanwhile
  std::vector<std::string> left_out;  ///< services that this machine does not deliver
};

/// Throws a Failure where the site cannot be read, or this machine is none of its alert managers.
LaboratoryPlan PlanLaboratory();

}  // namespace site
