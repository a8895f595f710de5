// SPDX-License-Identifier: MIT
#include "alerting/sheets/page_snmp_general.h"

#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"
#include "alerting/managers/snmp_manager_dlg.h"
#include "alerting/managers/snmp_managers.h"
#include "alerting/services/ntfy_service_snmp.h"
#include "alerting/sheets/general_access.h"
#include "alerting/ui/select_row.h"
#include "platform/ui/message.h"

namespace alerting {
namespace {

enum ControlId { kIdManagers = 120, kIdAdd, kIdRemove, kIdProperties };

constexpr char kDescription[] =
    "Sends SNMP (Simple Network Management Protocol) Traps to listed destinations.";

}  // namespace

CPropPgSNMPGeneral::CPropPgSNMPGeneral()
    : CGeneralPage(ctxhelp::kHelpSnmpGeneral, kGeneralOf<CNtfyServiceSNMP>),
      managers_(*this, kIdManagers, "&SNMP Destinations:"),
      add_(*this, kIdAdd, "A&dd..."),
      remove_(*this, kIdRemove, "&Remove"),
      properties_(*this, kIdProperties, "&Properties") {
  SetLayout(ui::Column({Frames(kDescription), ui::Over(managers_),
                        ui::Row({ui::Stretch(), ui::Bare(add_), ui::Bare(remove_), ui::Bare(properties_)})}));
  AddSnmpManagerColumns(managers_);
  managers_.SetIsEdit(false);
  managers_.SetOnChange([this] {
    UpdateData(true);
    EnableRowButtons(true);
  });
  managers_.SetOnClick([this] { OnClickInList(); });
  managers_.SetOnDoubleClick([this] {
    SelectRowUnderCursor(managers_);
    OnProperties();
  });
  managers_.SetOnKey([this](ui::Key key) { OnKeyInList(key); });
  add_.SetOnClick([this] { OnAdd(); });
  remove_.SetOnClick([this] { OnRemove(); });
  properties_.SetOnClick([this] { OnProperties(); });
}

void CPropPgSNMPGeneral::OnInitDialog() {
  CGeneralPage::OnInitDialog();
  Refill();
}

void CPropPgSNMPGeneral::EnableRowButtons(bool on) {
  remove_.Enable(on);
  properties_.Enable(on);
}

void CPropPgSNMPGeneral::Refill() {
  FillSnmpManagerList(managers_, true);
  EnableRowButtons(false);
}

void CPropPgSNMPGeneral::OnAdd() {
  UpdateData(true);
  if (CSnmpManagerDlg(this, nullptr).RunModal() == ui::kOk) Refill();
}

void CPropPgSNMPGeneral::OnProperties() {
  ALRTUSR_SNMPSERVICEREC* manager = SnmpManagerOfRow(managers_, managers_.FocusedRow());
  if (manager != nullptr && CSnmpManagerDlg(this, manager).RunModal() == ui::kOk) Refill();
}

void CPropPgSNMPGeneral::OnRemove() {
  EnsureStoresOpen();
  if (ui::MessageBox(Text(kIdsDeleteSnmpManager), ui::Buttons::kYesNo, ui::MessageIcon::kQuestion, this) !=
      ui::Answer::kYes)
    return;
  UpdateData(true);
  const ALRTUSR_SNMPSERVICEREC* manager = SnmpManagerOfRow(managers_, managers_.FocusedRow());
  if (manager != nullptr && DeleteSnmpManager(manager->guid)) Refill();
}

void CPropPgSNMPGeneral::OnClickInList() {
  if (SelectRowUnderCursor(managers_)) remove_.Enable(true);
}

void CPropPgSNMPGeneral::OnKeyInList(ui::Key key) {
  if (key == ui::Key::kDelete) return OnRemove();
  if (key != ui::Key::kSpace && key != ui::Key::kUp && key != ui::Key::kDown) return;
  if (managers_.FocusedRow() < 0) return;  // an empty list has keys too
  managers_.SelectRow(managers_.FocusedRow());
  EnableRowButtons(true);
}

}  // namespace alerting
