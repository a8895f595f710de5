// SPDX-License-Identifier: MIT
#pragma once

#include "console/site/providers.h"
#include "platform/ui/window.h"

namespace hosts {

/// Runs the dialog that adds a paging provider; it begins with the line settings that most have. Answers whether one was
/// stored, and then its identity in `added`.
bool AddProvider(platform::ui::Window* parent, platform::GUID& added);
/// Runs the dialog that changes a stored provider. Answers whether it was stored.
bool ChangeProvider(platform::ui::Window* parent, const site::Provider& provider);

}  // namespace hosts
