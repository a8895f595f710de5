// SPDX-License-Identifier: MIT
// The dialogs of dialing that a console runs on their own.
#include "alerting/alerting.h"
#include "alerting/api/call.h"
#include "alerting/telephony/dialing_properties_dlg.h"
#include "alerting/telephony/dialing_rules_dlg.h"

using namespace alerting;  // NOLINT: exports speak the library's language

extern "C" {

std::int32_t DialingPropertiesDialog(ui::Window* parent, const char* location) {
  return Call<std::int32_t>(ui::kCancel, [&] {
    return CDialingPropertiesDlg(parent, location != nullptr ? location : "").RunModal();
  });
}

std::int32_t RulesDialog(ui::Window* parent, char* same_area, char* long_distance, char* international) {
  return Call<std::int32_t>(ui::kCancel, [&] {
    return CDialingRulesDlg(parent, same_area, long_distance, international).RunModal();
  });
}

std::int32_t SetPhoneNumberDialog(std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t) {
  return ui::kCancel;
}

std::int32_t ChooseIPDialog(std::uint32_t, std::uint32_t) { return ui::kCancel; }

std::int32_t ChooseCommunityDialog(std::uint32_t, std::uint32_t) { return ui::kCancel; }

std::int32_t ModemSettingsDialog(std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t) {
  return ui::kCancel;
}

}  // extern "C"
