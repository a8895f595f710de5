// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

#include "console/hosts/field_places.h"
#include "platform/ui/modal.h"

namespace hosts {

/// Goes from a window that is open to a field, as a person would: turns pages, presses the buttons on the way, and puts the
/// focus on the field. Where a button cannot be pressed, or the record is gone, it says so and stays there; where a page does
/// not let go, it stays too. `way` outlives the windows.
void GoToField(std::span<const FieldStop> way, const std::string& record, ui::Modal& window);

}  // namespace hosts
