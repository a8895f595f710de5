// SPDX-License-Identifier: MIT
#include "alerting/telephony/location_name_dlg.h"

#include "alerting/frame/stores.h"

namespace alerting {
namespace {

constexpr int kIdName = 100;

}  // namespace

CLocationNameDlg::CLocationNameDlg(ui::Window* parent)
    : CLibraryDialog(parent, "Enter Name of Location", ctxhelp::kHelpLocationName),
      field_(*this, kIdName, "&Name:"),
      buttons_(*this) {
  SetLayout(ui::Column({ui::Field(field_), buttons_.Row()}));
  field_.SetLimit(decltype(ALRTMODEM_LOCATION::name)::kMaxLength);
  field_.SetOnChange([this] { buttons_.ok.Enable(!field_.Text().empty()); });
}

void CLocationNameDlg::OnInitDialog() {
  CLibraryDialog::OnInitDialog();
  buttons_.ok.Enable(false);
}

}  // namespace alerting
