// SPDX-License-Identifier: MIT
#include "alerting/telephony/dialing_properties_dlg.h"

#include "alerting/frame/messages.h"
#include "alerting/telephony/countries.h"
#include "alerting/telephony/location_name_dlg.h"
#include "alerting/telephony/locations.h"

namespace alerting {
namespace {

enum Id {
  kIdLocation = 100,
  kIdNew,
  kIdRemove,
  kIdAreaCode,
  kIdCountry,
  kIdLocal,
  kIdLongDistance,
  kIdCallWaiting,
  kIdDisableDigits,
  kIdDialing
};

constexpr int kTone = 0, kPulse = 1;

}  // namespace

CDialingPropertiesDlg::CDialingPropertiesDlg(ui::Window* parent, std::string location)
    : CPropertiesDialog(parent, "Dialing Properties", ctxhelp::kHelpDialingProperties),
      shown_(std::move(location)),
      location_field_(*this, kIdLocation, "I am &dialing from:", true),
      new_(*this, kIdNew, "&New..."),
      remove_(*this, kIdRemove, "&Remove"),
      area_code_field_(*this, kIdAreaCode, "The area &code is:"),
      country_(*this, kIdCountry, "&I am in:", true),
      local_field_(*this, kIdLocal, "To access an &outside line, first dial:"),
      long_distance_field_(*this, kIdLongDistance, "for long distance."),
      call_waiting_box_(*this, kIdCallWaiting, "This location has call &waiting.  To disable it, dial:"),
      disable_field_(*this, kIdDisableDigits, "To disable call waiting, dial:"),
      dialing_group_(*this, kIdDialing, "The phone system at this location uses",
                     {"&Tone dialing", "&Pulse dialing"}),
      buttons_(*this) {
  SetLayout(ui::Column({WhereIAm(), HowIDial(), buttons_.Row()}));
  for (CFilteredEdit* field : {&area_code_field_, &local_field_, &long_distance_field_, &disable_field_}) {
    field->SetLimit(decltype(ALRTMODEM_LOCATION::areaCode)::kMaxLength);
    field->SetFilter(field == &area_code_field_ ? CharacterSet::kAreaCode : CharacterSet::kDialing);
  }
  location_field_.SetIsEdit(false);
  location_field_.SetOnChange([this] { OnChooseLocation(); });
  new_.SetOnClick([this] { OnNew(); });
  remove_.SetOnClick([this] { OnRemove(); });
  country_.SetOnChange([this] { OnChooseCountry(); });
  call_waiting_box_.SetOnChange([this] { disable_field_.Enable(call_waiting_box_.Checked()); });
}

ui::LayoutNode CDialingPropertiesDlg::WhereIAm() {
  return ui::Group("Where I am:",
                   {ui::Row({ui::Field(location_field_), ui::Field(new_), ui::Field(remove_)}),
                    ui::Row({ui::Field(area_code_field_), ui::Stretch()}), ui::Field(country_)});
}

ui::LayoutNode CDialingPropertiesDlg::HowIDial() {
  return ui::Group(
      "How I dial from this location:",
      {ui::Row({ui::Field(local_field_), ui::Note("for local,"), ui::Before(long_distance_field_)}),
       ui::Row({ui::Field(call_waiting_box_), ui::Bare(disable_field_)}), ui::Field(dialing_group_)});
}

void CDialingPropertiesDlg::OnInitDialog() {
  FillCountryCombo(country_, kUnitedStates);
  CPropertiesDialog::OnInitDialog();
  Refill(std::exchange(shown_, {}));
}

void CDialingPropertiesDlg::Exchange(ui::DataExchange& x) {
  x.Text(area_code_field_, area_code_);
  x.Text(local_field_, local_);
  x.Text(long_distance_field_, long_distance_);
  x.Check(call_waiting_box_, has_call_waiting_);
  x.Text(disable_field_, disable_digits_);
  x.Radio(dialing_group_, dialing_);
}

void CDialingPropertiesDlg::Refill(const std::string& location) {
  FillLocationCombo(location_field_, location);
  if (location_field_.Count() > 0)
    Load();
  else
    Show(NewLocation(""));
}

bool CDialingPropertiesDlg::Load() {
  ALRTMODEM_LOCATION location{};
  if (!ReadLocation(location_field_.Text(), location)) return Fail(kIdsNoLocations, this);
  Show(location);
  return true;
}

void CDialingPropertiesDlg::Show(const ALRTMODEM_LOCATION& location) {
  shown_ = location.name.View();
  area_code_ = location.areaCode.View();
  local_ = location.localAccess.View();
  long_distance_ = location.longDistanceAccess.View();
  has_call_waiting_ = location.hasCallWaiting != 0;
  disable_digits_ = location.callWaitingDisable.View();
  dialing_ = location.toneDialing == 1 ? kTone : kPulse;
  UpdateData(false);
  disable_field_.Enable(has_call_waiting_);
  SelectCountry(country_, kUnitedStates);  // what a location shows for which none was ever chosen
  SelectCountry(country_, location.countryId);
  area_code_field_.Enable(SelectedCountry(country_)->has_area_codes != 0);
  SetDirty(false);
}

void CDialingPropertiesDlg::OnChooseLocation() {
  if (SaveIfDirty() && Load()) return;
  // The list names the location whose settings stand in the fields.
  location_field_.Select(location_field_.FindBytes(shown_));
}

void CDialingPropertiesDlg::OnChooseCountry() {
  const bool has_area_codes = SelectedCountry(country_)->has_area_codes != 0;
  if (!has_area_codes) area_code_field_.SetText("");
  area_code_field_.Enable(has_area_codes);
}

void CDialingPropertiesDlg::OnNew() {
  if (!SaveIfDirty()) return;
  CLocationNameDlg dialog(this);
  GUID id{};
  if (dialog.RunModal() == ui::kOk && CreateLocation(dialog.Name(), id)) Refill(dialog.Name());
}

void CDialingPropertiesDlg::OnRemove() {
  if (ui::MessageBox(Text(kIdsDeleteLocation), ui::Buttons::kYesNo, ui::MessageIcon::kQuestion, this) !=
      ui::Answer::kYes)
    return;
  if (!DeleteLocation(shown_)) return;
  SetDirty(false);  // whatever becomes of the next load: these changes have nowhere to go
  Refill("");
}

bool CDialingPropertiesDlg::Save() {
  UpdateData(true);
  ALRTMODEM_LOCATION settings{};
  settings.areaCode.Assign(area_code_);
  settings.localAccess.Assign(local_);
  settings.longDistanceAccess.Assign(long_distance_);
  settings.hasCallWaiting = has_call_waiting_;
  settings.callWaitingDisable.Assign(disable_digits_);
  settings.toneDialing = dialing_ == kTone;
  settings.countryCode = static_cast<std::uint16_t>(SelectedCountryCode(country_));
  settings.countryId = static_cast<std::uint32_t>(SelectedCountryId(country_));
  return UpdateLocation(shown_, settings);
}

/// Writes what is shown also when nothing was edited: the country of a location for which none was ever chosen, say.
void CDialingPropertiesDlg::OnOk() {
  if (Save()) EndDialog(ui::kOk);
}

}  // namespace alerting
