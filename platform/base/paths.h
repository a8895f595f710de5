// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace platform {

/// The directory in which the console keeps its records and files: the environment variable ALERTING_DATA,
/// else "$XDG_DATA_HOME/alerting", else "$HOME/.local/share/alerting" (the XDG base directories),
/// else "./alerting-data". Read anew on each call; the directory itself may not exist. A relative name is made absolute
/// when it is first met and stays what it was then: a program that changes its working directory goes on with the same
/// data.
std::string DataDirectory();

/// The whole file, or false when it cannot be read.
bool ReadWholeFile(const std::string& path, std::string& bytes);

/// Makes the directory and its parents (mode 0700) and flushes their names to the disk; what the system administrator's
/// account makes belongs to the owner of the directory above. True when it is there afterwards;
/// else errno says why not.
bool MakeDirectories(const std::string& path);

}  // namespace platform
