// SPDX-License-Identifier: MIT
#include "alerting/sheets/service_page.h"

#include "alerting/frame/companions.h"

namespace alerting {

void CServicePage::OnInitDialog() {
  modified_ = false;
  PropertyPage::OnInitDialog();
}

void CServicePage::MarkModified() {
  modified_ = true;
  SetModified(true);
}

bool CServicePage::SavePage() {
  if (!modified_) return true;
  modified_ = false;
  return UpdateData(true) && SaveFields();
}

void CServicePage::OnHelp(const ui::HelpEvent& event) { ShowHelp(*this, event, help_page_); }

}  // namespace alerting
