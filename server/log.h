// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace alertserver {

/// Writes a line to standard error, with the time before it. Any thread.
void Log(std::string_view line);

}  // namespace alertserver
