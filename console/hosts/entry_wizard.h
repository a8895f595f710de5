// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/site/library_calls.h"
#include "platform/ui/window.h"

namespace hosts {

/// Runs the wizard that gives a user an entry on a service on which the user has none yet. Answers whether one was stored.
bool AddEntry(platform::ui::Window* parent, const site::LibraryCalls& calls, const platform::GUID& user,
              const std::string& user_name);

}  // namespace hosts
