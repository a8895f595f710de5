// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace alerting {

/// The folder of the console's scripts, beside its data directory, with a separator at its end.
std::string ScriptsFolder();

}  // namespace alerting
