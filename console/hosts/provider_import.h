// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/window.h"

namespace hosts {

/// Lets a person choose a file of paging providers, adds them and says how many were added, or what is wrong with the file.
/// Answers whether something was stored.
bool ImportProviders(platform::ui::Window* parent);

}  // namespace hosts
