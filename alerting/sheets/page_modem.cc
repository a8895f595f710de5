// SPDX-License-Identifier: MIT
#include "alerting/sheets/page_modem.h"

#include "alerting/frame/messages.h"
#include "alerting/telephony/manage_modem_types_dlg.h"
#include "alerting/telephony/modem_properties_dlg.h"
#include "alerting/telephony/new_modem_dlgs.h"
#include "alerting/ui/program_dialogs.h"
#include "alerting/ui/select_row.h"

namespace alerting {
namespace {

enum ControlId {
  kIdModems = 100,
  kIdBaud,
  kIdScript,
  kIdBrowse,
  kIdSerial,
  kIdProperties = kIdSerial + 3,
  kIdNew,
  kIdDelete,
  kIdManageTypes
};

constexpr std::size_t kMaxScript = 260;

}  // namespace

CPropPgModem::CPropPgModem()
    : CServicePage("Modems", ctxhelp::kHelpModem),
      modems_(*this, kIdModems, "Modems"),
      baud_(*this, kIdBaud, "&Baud Rate:"),
      script_(*this, kIdScript, "&Script File:"),
      browse_(*this, kIdBrowse, script_),
      serial_(*this, kIdSerial),
      properties_(*this, kIdProperties, "&Properties"),
      new_(*this, kIdNew, "Ne&w..."),
      delete_(*this, kIdDelete, "&Delete"),
      manage_types_(*this, kIdManageTypes, "&Manage Modem Types") {
  SetLayout(ui::Column({ui::Bare(modems_),
                        ui::Row({ui::Characters(8, ui::Field(baud_)), ui::Field(script_), ui::Bare(browse_)}),
                        ui::Row({ui::Bare(serial_.data_bits), ui::Bare(serial_.parity),
                                 ui::Bare(serial_.stop_bits), ui::Stretch(),
                                 ui::ButtonColumn({ui::Bare(properties_), ui::Bare(new_), ui::Bare(delete_),
                                                   ui::Bare(manage_types_)})})}));
  AddModemColumns(modems_);
  modems_.SetOnChange([this] { EnableRowButtons(true); });
  modems_.SetOnClick([this] {
    if (SelectRowUnderCursor(modems_)) EnableRowButtons(true);
  });
  modems_.SetOnDoubleClick([this] { OnProperties(); });
  modems_.SetOnKey([this](ui::Key key) { OnKeyInList(key); });
  browse_.SetOnClick([this] { OnBrowseScript(); });
  properties_.SetOnClick([this] { OnProperties(); });
  new_.SetOnClick([this] { OnNew(); });
  delete_.SetOnClick([this] { OnDelete(); });
  manage_types_.SetOnClick([this] { CManageModemTypesDlg(this).RunModal(); });
}

void CPropPgModem::OnInitDialog() {
  script_.SetLimit(kMaxScript);
  ReadSettings();
  RefillModems();
  EnableRowButtons(modems_.FocusedRow() >= 0);
  script_.Show(!pager_mode_);
  browse_.Show(!pager_mode_);
  CServicePage::OnInitDialog();
}

void CPropPgModem::ReadSettings() {
  settings_ = ModemSettings{};
  if (HasService()) Dialer().GetModemSettings(settings_, backup_link_);
  serial_.Read(settings_);
  FillBaudRateCombo(baud_, settings_.baudRate);
}

void CPropPgModem::ReloadModemSettings() {
  if (!Created()) return;
  ReadSettings();
  UpdateData(false);
}

void CPropPgModem::Exchange(ui::DataExchange& x) {
  x.Text(script_, settings_.scriptFile);
  serial_.Exchange(x);
}

void CPropPgModem::OnKeyInList(ui::Key key) {
  if (key == ui::Key::kDelete) return OnDelete();
  if (key != ui::Key::kSpace && key != ui::Key::kUp && key != ui::Key::kDown) return;
  modems_.SelectRow(modems_.FocusedRow());
  EnableRowButtons(modems_.RowCount() > 0);
}

void CPropPgModem::OnProperties() {
  const GUID modem = ModemOfRow(modems_, modems_.FocusedRow());
  if (modem.IsNull()) return;
  CModemPropertiesDlg(this, modem).RunModal();
  RefillModems();
}

void CPropPgModem::OnNew() {
  CNewModemDlg dialog(this);
  if (dialog.RunModal() != ui::kOk) return;
  CModemPropertiesDlg(this, dialog.Modem()).RunModal();
  RefillModems();
  delete_.Enable(true);
  properties_.Enable(false);
}

void CPropPgModem::OnDelete() {
  if (!Ask(kIdsDeleteModem, this)) return;
  const GUID modem = ModemOfRow(modems_, modems_.FocusedRow());
  if (modem.IsNull()) return;
  DeleteModem(modem);
  RefillModems();
  EnableRowButtons(false);
}

void CPropPgModem::OnBrowseScript() {
  UpdateData(true);
  CScriptOpenDialog dialog(this, settings_.scriptFile);
  dialog.default_extension.clear();  // a script may have any name
  if (dialog.Choose() != ui::kOk) return;
  settings_.scriptFile = dialog.Path();
  UpdateData(false);
  MarkModified();
}

void CPropPgModem::TakeChoices() {
  serial_.Take(settings_);
  if (baud_.Current() >= 0) settings_.baudRate = static_cast<std::uint32_t>(baud_.Data(baud_.Current()));
}

bool CPropPgModem::SaveFields() {
  const int row = modems_.FocusedRow();
  const GUID modem = ModemOfRow(modems_, row);
  if (modem.IsNull()) return Fail(kIdsSelectModem, this);
  settings_.modem = modem;
  UpdateData(true);
  TakeChoices();
  return HasService() && Dialer().SetModemSettings(settings_, modems_.Cell(row, 0), backup_link_);
}

}  // namespace alerting
