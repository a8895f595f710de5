// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "alerting/alert_page.h"
#include "companions/ctxhelp/help_pages.h"

namespace alerting {

namespace ui = platform::ui;

/// What the library's panels share: their help, the wizard's buttons, and the host that saves its own controls first. Every
/// edit marks the page as modified. A derived panel fills its values in OnInitDialog and then calls the base's.
class CPanel : public CAlertPage {
 public:
  void OnHelp(const ui::HelpEvent& event) override;
  void OnPersonChange(ui::Control&) override { SetModified(true); }
  /// What the host answers does not keep the wizard from finishing.
  bool OnWizardFinish() override;

 protected:
  /// `wizard_buttons`: the flags that the panel's wizard shows while the panel is in front; 0 outside a wizard.
  CPanel(std::string caption, ctxhelp::HelpPage help_page, std::uint32_t wizard_buttons)
      : CAlertPage(std::move(caption)), help_page_(help_page), wizard_buttons_(wizard_buttons) {}

  void OnInitDialog() override;
  /// True once the panel was shown; its values are the record's, or a person's, from then on.
  bool Initialised() const { return initialised_; }
  std::uint32_t WizardButtons() const { return wizard_buttons_; }
  /// Has the host save its controls; true without a host.
  bool HostSaves();
  /// Shows the wizard's buttons on the host: without Next, and with Finish disabled, while the panel is not complete.
  void ShowWizardButtons(bool complete);

 private:
  const ctxhelp::HelpPage help_page_;
  const std::uint32_t wizard_buttons_;
  bool initialised_ = false;
};

}  // namespace alerting
