// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/manual/command.h"

namespace manual {

/// The man page: `frame` with a line ".OPTIONS" for the options that all verbs have and ".VERBS" for the verbs.
std::string ManPage(const Command& program, std::string frame);

/// Completion scripts: verbs, options and, where a file or directory is meant, file names. They read nothing else.
std::string BashCompletion(const Command& program);
std::string ZshCompletion(const Command& program);

}  // namespace manual
