// SPDX-License-Identifier: MIT
#include "alerting/telephony/countries.h"

#include "alerting/frame/strings.h"

namespace alerting {

const std::array<Country, 242> CountryTable = {{
#define ALERTING_COUNTRY(id, name, code, has_area_codes) {id, code, has_area_codes},
#include "resources/countries.def"
#undef ALERTING_COUNTRY
}};

void FillCountryCombo(ui::ComboBox& combo, std::uint32_t id) {
  for (const Country* country = CountryTable.data(); country->id != 0; ++country)
    combo.Add(Text(static_cast<int>(country->id)), reinterpret_cast<ui::ItemData>(country));
  SelectCountry(combo, kUnitedStates);
  SelectCountry(combo, id);
}

void SelectCountry(ui::ComboBox& combo, std::uint32_t id) {
  for (const Country* country = CountryTable.data(); country->id != 0; ++country)
    if (country->id == id) combo.Select(combo.FindText(Text(static_cast<int>(id))));
}

const Country* SelectedCountry(const ui::ComboBox& combo) {
  return reinterpret_cast<const Country*>(combo.Data(combo.Current()));
}

std::int32_t SelectedCountryCode(const ui::ComboBox& combo) {
  const Country* country = SelectedCountry(combo);
  return country != nullptr ? static_cast<std::int32_t>(country->code) : -1;
}

std::int32_t SelectedCountryId(const ui::ComboBox& combo) {
  const Country* country = SelectedCountry(combo);
  return country != nullptr ? static_cast<std::int32_t>(country->id) : -1;
}

}  // namespace alerting
