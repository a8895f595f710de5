// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "platform/ui/lists.h"

namespace alerting {

namespace ui = platform::ui;

/// A country that a location can be in. Its identifier is stored in the location's record, and is the number of its name
/// in the string table.
struct Country {
  std::uint32_t id;
  std::uint32_t code;  ///< international dialing code; several countries share one
  std::uint32_t has_area_codes;
};

/// All countries, and an entry of zeros behind the last.
extern const std::array<Country, 242> CountryTable;

/// What a location has that names no country of the table.
inline constexpr std::uint32_t kUnitedStates = 4238;

/// Adds every country's name to a drop-down, with a pointer to its entry as the item's data, and selects the country of
/// that identifier, or the United States where there is none.
void FillCountryCombo(ui::ComboBox& combo, std::uint32_t id);
/// Selects the country of that identifier; nothing changes where there is none.
void SelectCountry(ui::ComboBox& combo, std::uint32_t id);

/// The entry of the selected country, or null.
const Country* SelectedCountry(const ui::ComboBox& combo);
/// Its dialing code or identifier, -1 where none is selected.
std::int32_t SelectedCountryCode(const ui::ComboBox& combo);
std::int32_t SelectedCountryId(const ui::ComboBox& combo);

}  // namespace alerting
