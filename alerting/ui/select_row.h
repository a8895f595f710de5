// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/lists.h"

namespace alerting {

/// Selects and focuses the row under the last mouse event, as a click on any column of a report is meant.
/// False, and nothing changed, when no visible row is there.
bool SelectRowUnderCursor(platform::ui::ListView& list);

}  // namespace alerting
