// SPDX-License-Identifier: MIT
#include "alerting/telephony/new_modem_dlgs.h"

#include "alerting/telephony/manage_modem_types_dlg.h"
#include "alerting/telephony/modem_lists.h"
#include "alerting/telephony/modems.h"

namespace alerting {
namespace {

enum ControlId { kIdType = 100, kIdName, kIdManage };

constexpr std::size_t kMaxName = decltype(ALRTSERV_MODEM::name)::kMaxLength;

}  // namespace

CNewModemDlg::CNewModemDlg(ui::Window* parent)
    : CLibraryDialog(parent, "Create new modem", ctxhelp::kHelpNewModem),
      type_(*this, kIdType, "&Select modem type for the new modem:", true),
      name_(*this, kIdName, "&Enter name for new modem:"),
      manage_types_(*this, kIdManage, "&Manage Modem Types"),
      buttons_(*this) {
  SetLayout(ui::Column(
      {ui::Over(type_), ui::Over(name_), ui::Row({ui::Bare(manage_types_), ui::Stretch()}), buttons_.Row()}));
  type_.SetOnChange([this] { OnChooseType(); });
  name_.SetOnChange([this] { UpdateOk(); });
  manage_types_.SetOnClick([this] { OnManageTypes(); });
}

void CNewModemDlg::OnInitDialog() {
  name_.SetLimit(kMaxName);
  FillModemTypeCombo(type_);
  UpdateOk();
  CLibraryDialog::OnInitDialog();
}

void CNewModemDlg::UpdateOk() { buttons_.ok.Enable(!name_.Text().empty()); }

void CNewModemDlg::OnChooseType() {
  if (type_.Current() < 0)
    name_.SetText("");
  else if (name_.Text().empty())
    name_.SetText(ProposeModemName(type_.Text()));
  UpdateOk();
}

void CNewModemDlg::OnManageTypes() {
  CManageModemTypesDlg(this).RunModal();
  FillModemTypeCombo(type_);
  if (type_.Current() < 0) buttons_.ok.Enable(false);
}

void CNewModemDlg::OnOk() {
  GUID type{};
  GetSelectedGuid(type_, type);
  if (CreateModemFromType(type, name_.Text(), modem_))
    EndDialog(ui::kOk);
  else
    buttons_.ok.Enable(false);
}

CNewModemTypeDlg::CNewModemTypeDlg(ui::Window* parent)
    : CLibraryDialog(parent, "Create new modem type", ctxhelp::kHelpNewModemType),
      name_(*this, kIdName, "&Enter name of the new type:"),
      type_(*this, kIdType, "&Select modem type to use as a basis for the new type:", true),
      buttons_(*this) {
  SetLayout(ui::Column({ui::Over(name_), ui::Over(type_), buttons_.Row()}));
}

void CNewModemTypeDlg::OnInitDialog() {
  name_.SetLimit(kMaxName);
  FillModemTypeCombo(type_);
  UpdateOk();
  CLibraryDialog::OnInitDialog();
}

void CNewModemTypeDlg::UpdateOk() { buttons_.ok.Enable(!name_.Text().empty() && type_.Current() >= 0); }

void CNewModemTypeDlg::OnOk() {
  UpdateData(true);
  if (GetSelectedGuid(type_, basis_)) EndDialog(ui::kOk);
}

}  // namespace alerting
