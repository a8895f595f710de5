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

void CManageModemTypesDlg::Refill(std::string_view select_name) {
  FillModemTypeList(types_, select_name);
  EnableButtons();
}

// Another window with a list of types took the room of the identities behind this one: they are taken anew, or a button
// would act on another type than the one shown. An empty list has none.
void CManageModemTypesDlg::RefillKeepingSelection() {
  if (types_.Count() > 0) Refill(std::string(types_.ItemText(types_.Current())));
}

void CManageModemTypesDlg::EnableButtons() {
  remove_.Enable(types_.Current() >= 0);
  properties_.Enable(types_.Current() >= 0);
}

void CManageModemTypesDlg::OnNew() {
  CNewModemTypeDlg dialog(this);
  GUID type{};
  if (dialog.RunModal() != ui::kOk || !CreateModemType(dialog.Name(), dialog.Basis(), type))
    return RefillKeepingSelection();
  CModemTypePropertiesDlg(this, type).RunModal();
  Refill();
}

void CManageModemTypesDlg::OnRemove() {
  GUID type{};
  if (!GetSelectedGuid(types_, type) || !Ask(kIdsDeleteModemType, this)) return;
  DeleteModemType(type);
  Refill();
}

void CManageModemTypesDlg::OnProperties() {
  GUID type{};
  if (!GetSelectedGuid(types_, type)) return;
  CModemTypePropertiesDlg(this, type).RunModal();
  RefillKeepingSelection();
}

}  // namespace alerting
