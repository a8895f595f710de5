// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace ctxhelp {

/// The directory with the console's resource files: the environment variable ALERTING_RESOURCES, else
/// `share/alerting/resources` under the prefix that the library is installed in; a build tree has the same. The first
/// that exists, or "" where there is none.
std::string ResourceDirectory();

}  // namespace ctxhelp
