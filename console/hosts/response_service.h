// SPDX-License-Identifier: MIT
#pragma once

#include "console/site/library_calls.h"
#include "console/site/overview.h"
#include "platform/ui/window.h"

namespace hosts {

/// Points a response at another service, or at another user of the same. Services of different types send different
/// things: what the response then sends is shown to be completed before it is stored. Answers whether it was stored.
bool RetargetResponse(platform::ui::Window* parent, const site::LibraryCalls& calls,
                      const site::Overview& overview, const platform::GUID& response);

}  // namespace hosts
