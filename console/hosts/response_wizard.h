// SPDX-License-Identifier: MIT
#pragma once

#include "console/site/library_calls.h"
#include "console/site/overview.h"
#include "platform/ui/window.h"

namespace hosts {

/// Runs the wizard that adds a response, whose users to alert come from `overview`. Answers whether one was stored, and
/// then its identity in `added`.
bool AddResponse(platform::ui::Window* parent, const site::LibraryCalls& calls,
                 const site::Overview& overview, platform::GUID& added);

}  // namespace hosts
