// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace platform {

/// Another program of this installation: the file that the environment variable names, else the one beside this program, else
/// the bare name, to be looked for in PATH.
std::string SiblingProgram(const std::string& name, const char* variable);

}  // namespace platform
