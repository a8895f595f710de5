// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/sheets/general_access.h"
#include "alerting/sheets/service_page.h"

namespace alerting {

/// The "General" page that every service's sheet begins with: a framed description over "&Enable Service",
/// and beside it a framed hint over "&Test", which is available while the service is enabled. A derived page with more
/// general fields than the flag takes them in TakeFields and gives them back in CollectFields.
class CGeneralPage : public CServicePage {
 public:
  static constexpr int kIdEnable = 100;
  static constexpr int kIdTest = 101;

  /// Null for a page outside a sheet, which then tests without asking. Not owned.
  void SetSheet(CServiceSheet* sheet) override { sheet_ = sheet; }

 protected:
  static constexpr char kSendHint[] = "Press Test to send a test message using this service.";

  CGeneralPage(ctxhelp::HelpPage help_page, const GeneralAccess& access);

  CServiceSheet* OwnSheet() const { return sheet_; }
  /// The two frames, for the top of the page's layout.
  ui::LayoutNode Frames(const std::string& description, const std::string& test_hint = kSendHint);
  /// The frames over a group of further fields.
  ui::LayoutNode FramesOver(const std::string& description, ui::LayoutNodes fields);

  virtual void TakeFields(const GeneralFields&) {}
  virtual void CollectFields(GeneralFields&) const {}

  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override { x.Check(enable_, enabled_); }
  bool SaveFields() override;

 private:
  void OnEnableClicked();
  void OnTest();

  const GeneralAccess& access_;
  CServiceSheet* sheet_ = nullptr;
  bool enabled_ = false;
  ui::CheckBox enable_;
  ui::Button test_;
};

}  // namespace alerting
