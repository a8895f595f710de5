// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "alerting/frame/stores.h"
#include "platform/ui/lists.h"

namespace alerting {

namespace ui = platform::ui;

// The places that modems dial from. Each operation makes sure that the stores are open, and shows its message where it
// fails.

/// Puts the names of all locations into an emptied drop-down and selects `select_name` (also in another case), or the
/// first where none is given. An empty store shows its message.
void FillLocationCombo(ui::ComboBox& combo, std::string_view select_name = {});
/// The same, and selects the location of that identity; nothing is selected where there is none.
void FillLocationComboByGuid(ui::ComboBox& combo, const GUID& location);

/// Gives the identity of the location of exactly that name. Without one: false and the null GUID, and no message.
bool FindLocationByName(std::string_view name, GUID& id);
/// The same for the whole record, which stays as it was where there is none.
bool ReadLocation(std::string_view name, ALRTMODEM_LOCATION& location);

/// What a location holds that is known by its name alone.
ALRTMODEM_LOCATION NewLocation(std::string_view name);
/// Adds a location of that name; false, after a message, when the name is taken or the store does not take the record.
bool CreateLocation(std::string_view name, GUID& id);
/// Gives the location of that name the settings of `settings`; its name and its identity stay.
bool UpdateLocation(std::string_view name, const ALRTMODEM_LOCATION& settings);
/// Removes the location of that name, also where modems name it.
bool DeleteLocation(std::string_view name);

}  // namespace alerting
