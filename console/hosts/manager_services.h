// SPDX-License-Identifier: MIT
#pragma once

#include "console/site/library_calls.h"
#include "console/site/overview.h"
#include "platform/ui/window.h"

namespace hosts {

/// Shows which services an alert manager delivers and lets it deliver others, each at once. Answers whether something was
/// stored. `overview` names the manager.
bool EditManagerServices(platform::ui::Window* parent, const site::LibraryCalls& calls,
                         const site::Overview& overview, const platform::GUID& manager);

}  // namespace hosts
