// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace alertserver {

/// An address under which other machines see this one; "127.0.0.1" where it has none.
std::string OwnAddress();

}  // namespace alertserver
