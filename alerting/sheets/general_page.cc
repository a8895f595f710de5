// SPDX-License-Identifier: MIT
#include "alerting/sheets/general_page.h"

#include "alerting/services/service_ui.h"
#include "alerting/sheets/service_sheet.h"

namespace alerting {

CGeneralPage::CGeneralPage(ctxhelp::HelpPage help_page, const GeneralAccess& access)
    : CServicePage("General", help_page),
      access_(access),
      enable_(*this, kIdEnable, "&Enable Service"),
      test_(*this, kIdTest, "&Test") {
  enable_.SetOnChange([this] { OnEnableClicked(); });
  test_.SetOnClick([this] { OnTest(); });
}

ui::LayoutNode CGeneralPage::Frames(const std::string& description, const std::string& test_hint) {
  return ui::Row({ui::Weighted(2, ui::Group("", {ui::Note(description), ui::Bare(enable_)})),
                  ui::Group("", {ui::Note(test_hint), ui::Row({ui::Stretch(), ui::Bare(test_)})})});
}

ui::LayoutNode CGeneralPage::FramesOver(const std::string& description, ui::LayoutNodes fields) {
  return ui::Column(
      {Frames(description), ui::Group("Notification Service Configuration", fields), ui::Stretch()});
}

void CGeneralPage::OnInitDialog() {
  const GeneralFields fields = access_.read(Service());
  enabled_ = fields.enabled.value_or(0) != 0;
  TakeFields(fields);
  CServicePage::OnInitDialog();
  test_.Enable(enabled_);
}

bool CGeneralPage::SaveFields() {
  GeneralFields fields;
  CollectFields(fields);
  fields.enabled = enabled_ ? 1 : 0;
  return access_.write(Service(), fields);
}

void CGeneralPage::OnEnableClicked() {
  enabled_ = enable_.Checked();
  test_.Enable(enabled_);
}

void CGeneralPage::OnTest() {
  if (sheet_ != nullptr && !sheet_->ConfirmApplyBeforeTest()) return;
  if (const auto test = ServiceUiOf(Service().Type().code).site_test) test(Service(), this);
}

}  // namespace alerting
