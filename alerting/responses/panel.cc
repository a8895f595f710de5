// SPDX-License-Identifier: MIT
#include "alerting/responses/panel.h"

#include "alerting/frame/companions.h"

namespace alerting {

void CPanel::OnHelp(const ui::HelpEvent& event) { ShowHelp(*this, event, help_page_); }

bool CPanel::OnWizardFinish() {
  HostSaves();
  return CAlertPage::OnWizardFinish();
}

void CPanel::OnInitDialog() {
  initialised_ = true;
  CAlertPage::OnInitDialog();
}

bool CPanel::HostSaves() { return HostDialog() == nullptr || HostDialog()->UpdateData(true); }

void CPanel::ShowWizardButtons(bool complete) {
  if (!initialised_ || wizard_buttons_ == 0 || HostDialog() == nullptr) return;
  std::uint32_t buttons = wizard_buttons_;
  if (!complete) {
    buttons &= ~static_cast<std::uint32_t>(ui::kWizardNext);
    if ((buttons & ui::kWizardFinish) != 0) buttons ^= ui::kWizardFinish | ui::kWizardDisabledFinish;
  }
  HostDialog()->SetWizardButtons(buttons);
}

}  // namespace alerting
