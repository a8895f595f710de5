// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/frame/stores.h"
#include "platform/ui/lists.h"

/// The alert managers: the servers that deliver alerts. They are only read here.
namespace alerting {

/// Fills the drop-down with the managers' names and selects the one with that identity. A store without any
/// shows its message.
void FillAlertManagerCombo(platform::ui::ComboBox& combo, const GUID& selected);

/// Finds a manager by its exact name. False after a message, and `id` as it was, when there is none.
bool FindAlertManagerByName(const char* name, GUID& id);

}  // namespace alerting
