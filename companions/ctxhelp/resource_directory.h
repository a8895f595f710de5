// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace ctxhelp {

/// The directory with the console's resource files: the environment variable ALERTING_RESOURCES, else
/// `../share/alerting/resources` beside the directory of the installed library, else the one of the source
/// tree that the library was built from. The first that exists, or "" where there is none.
std::string ResourceDirectory();

}  // namespace ctxhelp
