// SPDX-License-Identifier: MIT
#include "alerting/testing/select_user_dlg.h"

#include "alerting/services/user_list.h"

namespace alerting {
namespace {

constexpr int kIdList = 100;

}  // namespace

CSelectUserDlg::CSelectUserDlg(ui::Window* parent, CNtfyService& service, std::string name)
    : CLibraryDialog(parent, "Select user", ctxhelp::kHelpSelectUser),
      service_(service),
      name_(std::move(name)),
      list_(*this, kIdList, "&Users of this service:", true),
      buttons_(*this) {
  SetLayout(ui::Column({ui::Over(list_), buttons_.Row()}));
  list_.SetOnChange([this] { UpdateOk(); });
  list_.SetOnDoubleClick([this] { OnOk(); });
}

void CSelectUserDlg::OnInitDialog() {
  if (!service_.FillUserList(list_)) return EndDialog(ui::kCancel);
  list_.Select(list_.FindText(name_));
  CLibraryDialog::OnInitDialog();
  UpdateOk();
}

void CSelectUserDlg::UpdateOk() {
  const bool chosen = list_.Current() >= 0;
  buttons_.ok.Enable(chosen);
  if (chosen) buttons_.ok.SetDefault(true);
}

void CSelectUserDlg::OnOk() {
  if (list_.Current() < 0) return;
  name_ = list_.ItemText(list_.Current());
  user_ = ListedUsers::UserOf(list_.Data(list_.Current()));
  EndDialog(ui::kOk);
}

bool SelectUserOf(CNtfyService& service, ui::Window* parent, std::string& name, GUID& user) {
  CSelectUserDlg dialog(parent, service, name);
  if (dialog.RunModal() != ui::kOk) return false;
  name = dialog.Name();
  user = dialog.User();
  return true;
}

}  // namespace alerting
