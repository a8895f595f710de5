// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/window.h"

namespace hosts {

/// Lets a person add and remove the computers that the site knows, each at once. Answers whether something was stored.
bool EditComputers(platform::ui::Window* parent);

}  // namespace hosts
