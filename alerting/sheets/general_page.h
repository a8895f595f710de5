// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/sheets/service_page.h"

namespace alerting {

/// The "General" page that every service's sheet begins with: a framed description over "&Enable Service",
/// and beside it a framed hint over "&Test", which is available while the service is enabled.
class CGeneralPage : public CServicePage {
 public:
  static constexpr int kIdEnable = 100;
  static constexpr int kIdTest = 101;

  /// Null for a page outside a sheet, which then tests without asking. Not owned.
  void SetSheet(CServiceSheet* sheet) override { sheet_ = sheet; }

 protected:
  explicit CGeneralPage(ctxhelp::HelpPage help_page);

  /// The two frames, for the top of the page's layout.
  ui::LayoutNode Frames(const std::string& description, const std::string& test_hint);

  bool IsServiceEnabled() const { return enabled_; }
  void SetServiceEnabled(bool enabled) { enabled_ = enabled; }

  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override { x.Check(enable_, enabled_); }

 private:
  void OnEnableClicked();
  void OnTest();

  CServiceSheet* sheet_ = nullptr;
  bool enabled_ = false;
  ui::CheckBox enable_;
  ui::Button test_;
};

}  // namespace alerting
