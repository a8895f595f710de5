// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace platform {

/// The directory in which the console keeps its records and files: the environment variable ALERTING_DATA,
/// else "$XDG_DATA_HOME/alerting", else "$HOME/.local/share/alerting" (the XDG base directories),
/// else "./alerting-data". Read anew on each call; the directory itself may not exist.
std::string DataDirectory();

/// Writes `bytes` to the file "`path`.tmp", flushes it to the disk and renames it into place, so that a
/// reader sees either the old file or the whole new one. The file gets `mode` before it gets the bytes.
/// Writers of the same file take turns. What a killed writer left behind bears the one temporary name and is
/// replaced by the next writer, so that files with secrets do not pile up. False when any step fails; the old
/// file is then untouched, unless the last step, flushing the directory, failed.
bool WriteFileAtomically(const std::string& path, const std::string& bytes, unsigned mode);

/// The whole file, or false when it cannot be read.
bool ReadWholeFile(const std::string& path, std::string& bytes);

/// Makes the directory and its parents (mode 0700). True when it is there afterwards.
bool MakeDirectories(const std::string& path);

}  // namespace platform
