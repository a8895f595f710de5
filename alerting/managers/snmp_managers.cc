// SPDX-License-Identifier: MIT
#include "alerting/managers/snmp_managers.h"

#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"

namespace alerting {
namespace {

void LoadManagers(SnmpManagerTable& table) {
  CAlertUSR_SNMPDB& store = UserStore<CAlertUSR_SNMPDB>();
  table.count = 0;
  ALRTUSR_SNMPSERVICEREC manager{};
  Status status = store.DBAlertRecFindFirst(kSnmpManagerByIdentity, 0, nullptr, manager);
  for (; status == kOk && table.count < kMaxSnmpManagers; status = store.DBAlertRecFindNext(manager))
    table.managers[table.count++] = manager;
}

}  // namespace

SnmpManagerTable& TheSnmpManagers() {
  static SnmpManagerTable table;
  return table;
}

void AddSnmpManagerColumns(platform::ui::ListView& list) {
  list.AddColumn("Address", 45);
  list.AddColumn("Community", 15);
  list.AddColumn("Computer", 165);
  list.AddColumn("Comment", 75);
}

bool FillSnmpManagerList(platform::ui::ListView& list, bool reload) {
  SnmpManagerTable& table = TheSnmpManagers();
  if (reload) {
    EnsureStoresOpen();
    LoadManagers(table);
  }
  list.RemoveAllRows();
  for (std::size_t i = 0; i < table.count; ++i) {
    ALRTUSR_SNMPSERVICEREC& manager = table.managers[i];
    list.AddRow({std::string(manager.address.View()), std::string(manager.community.View()),
                 std::string(manager.computer.View()), std::string(manager.comment.View())},
                reinterpret_cast<platform::ui::ItemData>(&manager));
  }
  return table.count > 0;
}

ALRTUSR_SNMPSERVICEREC* SnmpManagerOfRow(const platform::ui::ListView& list, int row) {
  return reinterpret_cast<ALRTUSR_SNMPSERVICEREC*>(list.RowData(row));
}

bool DeleteSnmpManager(const GUID& manager) {
  EnsureStoresOpen();
  return UserStore<CAlertUSR_SNMPDB>().DBAlertRecDelete(manager) == kOk || Fail(kIdsSnmpManagerDeleteFailed);
}

}  // namespace alerting
