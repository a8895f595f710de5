// SPDX-License-Identifier: MIT
#include "alerting/managers/alert_managers.h"

#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"

namespace alerting {

void FillAlertManagerCombo(platform::ui::ComboBox& combo, const GUID& selected) {
  EnsureStoresOpen();
  combo.RemoveAll();
  CAlert_SRV_CFGDB& store = ManagerStore();
  ALRT_SRV_CFGREC manager{};
  Status status = store.DBAlertRecFindFirst(kByIdentity, 0, nullptr, manager);
  if (status != kOk) return ShowMessage(kIdsNoAlertManagers);
  for (; status == kOk; status = store.DBAlertRecFindNext(manager)) {
    const int item = combo.Add(manager.managerName.View());
    if (manager.guid == selected) combo.Select(item);
  }
}

bool FindAlertManagerByName(const char* name, GUID& id) {
  EnsureStoresOpen();
  platform::FixedText<64> key{};
  key.Assign(name != nullptr ? name : "");
  ALRT_SRV_CFGREC manager{};
  if (ManagerStore().DBAlertRecFindFirst(kManagerByName, sizeof(key), key.Data(), manager) != kOk)
    return Fail(kIdsNoAlertManagers);
  id = manager.guid;
  return true;
}

}  // namespace alerting
