// SPDX-License-Identifier: MIT
#include "alerting/sheets/service_sheet.h"

#include <algorithm>

#include "alerting/frame/strings.h"
#include "alerting/managers/config_file.h"
#include "platform/ui/desktop.h"
#include "platform/ui/message.h"

namespace alerting {

void CServiceSheet::Assemble(CNtfyService& service, std::initializer_list<CServicePage*> pages) {
  service_pages_ = pages;
  for (CServicePage* page : pages) AddPage(*page);
  for (CServicePage* page : pages) {
    page->SetService(&service);
    page->SetSheet(this);
  }
  service_ = &service;
  service.ReloadRecords();
}

bool CServiceSheet::SaveAllPages() {
  ui::WaitCursor wait;
  for (CServicePage* page : service_pages_) {
    if (!page->SavePage()) return false;
    wait.Restore();  // a message of the page may have taken its place
  }
  return service_->SaveRecords();
}

bool CServiceSheet::AnyModified() const {
  return std::ranges::any_of(service_pages_, &CServicePage::IsModified);
}

bool CServiceSheet::ConfirmApplyBeforeTest() {
  if (!AnyModified()) return true;
  const platform::ModuleScope scope(TheModule());
  switch (ui::MessageBox(Text(kIdsApplyBeforeTest), ui::Buttons::kYesNoCancel, ui::MessageIcon::kQuestion,
                         this)) {
    case ui::Answer::kYes:
      if (!UpdateData(true)) return false;  // else Apply and the save would both tell what is refused
      Press(ui::SheetButton::kApply);
      return SaveAllPages();
    case ui::Answer::kNo:
      return true;
    default:
      return false;
  }
}

bool CServiceSheet::OnCommand(ui::SheetButton button) {
  const bool saves = button == ui::SheetButton::kOk || button == ui::SheetButton::kApply;
  return saves && !SaveAllPages();
}

void CServiceSheet::OnDestroyed() {
  PropertySheet::OnDestroyed();
  WriteAlertServerConfig();
}

}  // namespace alerting
