// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace platform {

/// This machine's name.
std::string HostName();

}  // namespace platform
