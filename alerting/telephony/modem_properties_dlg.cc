// SPDX-License-Identifier: MIT
#include "alerting/telephony/modem_properties_dlg.h"

#include "alerting/frame/messages.h"
#include "alerting/telephony/dialing_properties_dlg.h"
#include "alerting/telephony/location_name_dlg.h"
#include "alerting/telephony/locations.h"
#include "alerting/telephony/modem_lists.h"

namespace alerting {
namespace {

enum ControlId { kIdLocation = 120, kIdNewLocation, kIdEditLocation };

}  // namespace

CModemPropertiesDlg::CModemPropertiesDlg(ui::Window* parent, const GUID& modem)
    : CModemDialog(parent, "Modem Properties", ctxhelp::kHelpModemProperties, ModemStore, modem,
                   "Direct Po&rt I/O"),
      location_(*this, kIdLocation, "I am dialing &from", true),
      new_location_(*this, kIdNewLocation, "Ne&w..."),
      edit_location_(*this, kIdEditLocation, "E&dit..."),
      buttons_(*this) {
  SetLayout(ui::Column({Fields(),
                        ui::Group("Location", {ui::Row({ui::Field(location_), ui::Bare(new_location_),
                                                        ui::Bare(edit_location_)})}),
                        buttons_.Row()}));
  TypeField().SetOnChange([this] { OnChooseType(); });
  new_location_.SetOnClick([this] { OnNewLocation(); });
  edit_location_.SetOnClick([this] { OnEditLocation(); });
}

void CModemPropertiesDlg::ShowLocation(const ALRTSERV_MODEM& modem) {
  FillLocationComboByGuid(location_, modem.locationGuid);
}

void CModemPropertiesDlg::ShowType(const ALRTSERV_MODEM& modem) {
  FillModemTypeComboByGuid(TypeField(), modem.modemTypeGuid);
}

bool CModemPropertiesDlg::TakeOwn(ALRTSERV_MODEM& modem) {
  GUID location{};
  if (!FindLocationByName(location_.Text(), location)) return Fail(kIdsSelectLocation, this);
  modem.locationGuid = location;
  GetSelectedGuid(TypeField(), modem.modemTypeGuid);
  return true;
}

bool CModemPropertiesDlg::AcceptWithoutManager() { return Fail(kIdsSelectManager, this); }

// The modem takes the name and the command strings of its new type.
void CModemPropertiesDlg::OnChooseType() {
  GUID id{};
  ALRTSERV_MODEM type{};
  if (!GetSelectedGuid(TypeField(), id) || !FindModemOrFirst(ModemTypeStore, id, type))
    return ShowMessage(kIdsNoModems, this);
  ALRTSERV_MODEM& modem = Working();
  modem.name = type.name;
  modem.initString = type.initString;
  modem.hangupString = type.hangupString;
  modem.dialPrefix = type.dialPrefix;
  modem.dialSuffix = type.dialSuffix;
  modem.alphaInitString = type.alphaInitString;
  modem.escapeString = type.escapeString;
}

void CModemPropertiesDlg::OnEditLocation() {
  UpdateData(true);
  const std::string before = location_.Text();
  CDialingPropertiesDlg dialog(this, before);
  FillLocationCombo(location_, dialog.RunModal() == ui::kOk ? dialog.Location() : before);
  SetDirty(true);
}

void CModemPropertiesDlg::OnNewLocation() {
  CLocationNameDlg name(this);
  GUID id{};
  if (name.RunModal() == ui::kOk) {
    if (!CreateLocation(name.Name(), id)) return;
    CDialingPropertiesDlg(this, name.Name()).RunModal();
    FillLocationCombo(location_, name.Name());
  }
  SetDirty(true);
}

CModemTypePropertiesDlg::CModemTypePropertiesDlg(ui::Window* parent, const GUID& type)
    : CModemDialog(parent, "Modem Type Properties", ctxhelp::kHelpModemTypeProperties, ModemTypeStore, type,
                   "Po&rt"),
      buttons_(*this) {
  SetLayout(ui::Column({Fields(), buttons_.Row()}));
}

void CModemTypePropertiesDlg::ShowType(const ALRTSERV_MODEM& modem) {
  FillModemTypeCombo(TypeField(), modem.name.View());
  TypeField().Enable(false);
}

bool CModemTypePropertiesDlg::TakeOwn(ALRTSERV_MODEM& modem) {
  modem.name.Assign(TypeField().Text());
  return true;
}

}  // namespace alerting
