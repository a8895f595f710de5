// SPDX-License-Identifier: MIT
#include "alerting/sheets/user_sheet.h"

#include <memory>
#include <vector>

#include "alerting/alert_page.h"
#include "alerting/frame/strings.h"

namespace alerting {

int RunUserSheet(CNtfyService& service, const GUID& user, ui::Window* parent) {
  CSheetUserProp sheet(Text(kIdsUserSheetTitle), parent, 0);
  std::vector<std::unique_ptr<CAlertPage>> panels;
  for (int i = 0; i < service.GetAddUserPanelCount(); ++i) {
    panels.emplace_back(service.CreateAddUserPanel(i, user, 0));
    if (panels.back() == nullptr) continue;
    panels.back()->SetHostDialog(&sheet);
    sheet.AddPage(*panels.back());
  }
  return sheet.RunModal();
}

}  // namespace alerting
