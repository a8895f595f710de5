// SPDX-License-Identifier: MIT
#include "alerting/telephony/manage_modem_types_dlg.h"

#include "alerting/frame/messages.h"
#include "alerting/telephony/modem_lists.h"
#include "alerting/telephony/modem_properties_dlg.h"
#include "alerting/telephony/new_modem_dlgs.h"

namespace alerting {
namespace {

enum ControlId { kIdTypes = 100, kIdNew, kIdRemove, kIdProperties };

}  // namespace

CManageModemTypesDlg::CManageModemTypesDlg(ui::Window* parent)
    : CLibraryDialog(parent, "Manage Modem Types", ctxhelp::kHelpManageModemTypes),
      types_(*this, kIdTypes, "&Modem Types:", true),
      new_(*this, kIdNew, "&New..."),
      remove_(*this, kIdRemove, "&Remove"),
      properties_(*this, kIdProperties, "&Properties..."),
      close_(*this, ui::kIdCancel, "Close") {
  SetLayout(
      ui::Column({ui::Row({ui::Over(types_), ui::ButtonColumn({ui::Bare(new_), ui::Bare(remove_),
                                                               ui::Bare(properties_), ui::Bare(close_)})})}));
  types_.SetOnChange([this] { EnableButtons(); });
  types_.SetOnDoubleClick([this] { OnProperties(); });
  new_.SetOnClick([this] { OnNew(); });
  remove_.SetOnClick([this] { OnRemove(); });
  properties_.SetOnClick([this] { OnProperties(); });
  close_.SetOnClick([this] { OnCancel(); });
  close_.SetDefault(true);
}

void CManageModemTypesDlg::OnInitDialog() {
  Refill();
  CLibraryDialog::OnInitDialog();
}

void CManageModemTypesDlg::Refill() {
  FillModemTypeList(types_);
  EnableButtons();
}

void CManageModemTypesDlg::EnableButtons() {
  remove_.Enable(types_.Current() >= 0);
  properties_.Enable(types_.Current() >= 0);
}

void CManageModemTypesDlg::OnNew() {
  CNewModemTypeDlg dialog(this);
  GUID type{};
  const bool asked = dialog.RunModal() == ui::kOk;
  if (asked && !CreateModemType(dialog.Name(), dialog.Basis(), type)) return;
  if (asked) CModemTypePropertiesDlg(this, type).RunModal();
  Refill();
}

void CManageModemTypesDlg::OnRemove() {
  GUID type{};
  if (!GetSelectedGuid(types_, type) || !Ask(kIdsDeleteModemType, this)) return;
  DeleteModemType(type);
  Refill();
}

// The dialog has a list of types of its own, so the identities behind this one are taken anew.
void CManageModemTypesDlg::OnProperties() {
  GUID type{};
  if (!GetSelectedGuid(types_, type)) return;
  const std::string name = types_.ItemText(types_.Current());
  CModemTypePropertiesDlg(this, type).RunModal();
  FillModemTypeList(types_, name);
  EnableButtons();
}

}  // namespace alerting
