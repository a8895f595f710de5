// SPDX-License-Identifier: MIT
#include "alerting/sheets/general_page.h"

#include "alerting/frame/messages.h"
#include "alerting/sheets/service_sheet.h"

namespace alerting {

CGeneralPage::CGeneralPage(ctxhelp::HelpPage help_page)
    : CServicePage("General", help_page),
      enable_(*this, kIdEnable, "&Enable Service"),
      test_(*this, kIdTest, "&Test") {
  enable_.SetOnChange([this] { OnEnableClicked(); });
  test_.SetOnClick([this] { OnTest(); });
}

ui::LayoutNode CGeneralPage::Frames(const std::string& description, const std::string& test_hint) {
  return ui::Row({ui::Weighted(2, ui::Group("", {ui::Note(description), ui::Bare(enable_)})),
                  ui::Group("", {ui::Note(test_hint), ui::Row({ui::Stretch(), ui::Bare(test_)})})});
}

void CGeneralPage::OnInitDialog() {
  CServicePage::OnInitDialog();
  test_.Enable(enabled_);
}

void CGeneralPage::OnEnableClicked() {
  enabled_ = enable_.Checked();
  test_.Enable(enabled_);
}

void CGeneralPage::OnTest() {
  if (sheet_ != nullptr && !sheet_->ConfirmApplyBeforeTest()) return;
  ShowMessage(kIdsTestLater, this);
}

}  // namespace alerting
