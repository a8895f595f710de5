// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/window.h"

namespace hosts {

/// Lets a person add, change and remove paging providers, each at once. Answers whether something was stored.
bool EditProviders(platform::ui::Window* parent);

}  // namespace hosts
