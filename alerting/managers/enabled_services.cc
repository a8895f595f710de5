// SPDX-License-Identifier: MIT
#include "alerting/managers/enabled_services.h"

#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"

namespace alerting {
namespace {

using Entry = ALRTSERV_INST_NTFY_SERVREC;

/// The first entry of a service, whichever manager it names.
bool FindEntry(const GUID& service, Entry& entry) {
  CAlertSERV_INST_NTFY_SERVDB& store = EnabledServiceStore();
  Status status = store.DBAlertRecFindFirst(kEnabledServiceByService, sizeof(GUID), &service, entry);
  while (status == kOk && entry.serviceGuid != service) status = store.DBAlertRecFindNext(entry);
  return status == kOk;
}

void AddEntry(Entry& entry) {
  GUID new_id{};
  entry.guid = kNullGuid;
  if (EnabledServiceStore().DBAlertRecAdd(entry, new_id) != kOk) ShowMessage(kIdsEnabledServiceAddFailed);
}

void AddBackupEntry(Entry entry, const GUID& backup_record) {
  entry.managerGuid = BackupManagerGuid();
  entry.backupGuid = backup_record;
  entry.isBackup = 1;
  AddEntry(entry);
}

}  // namespace

GUID& BackupManagerGuid() {
  static GUID manager{};
  return manager;
}

void EnableServiceOnManager(const ALRTNTFYSERV& service, const GUID& manager, bool enable) {
  EnsureStoresOpen();
  Entry found{};
  const bool exists = FindEntry(service.serviceId, found);
  if (exists && !enable) EnabledServiceStore().DBAlertRecDelete(found.guid);
  if (exists || !enable) return;
  Entry entry{};
  entry.serviceGuid = service.serviceId;
  entry.managerGuid = manager;
  entry.serviceName.Assign(service.name.View());
  AddEntry(entry);
  if (!BackupManagerGuid().IsNull() && !service.backupSpecificRecordId.IsNull())
    AddBackupEntry(entry, service.backupSpecificRecordId);
}

bool IsServiceOnManager(const GUID& service, const GUID& manager) {
  EnsureStoresOpen();
  CAlertSERV_INST_NTFY_SERVDB& store = EnabledServiceStore();
  Entry entry{};
  Status status = store.DBAlertRecFindFirst(kEnabledServiceByManager, sizeof(GUID), &manager, entry);
  for (; status == kOk; status = store.DBAlertRecFindNext(entry))
    if (entry.serviceGuid == service && entry.managerGuid == manager) return true;
  return false;
}

void EnabledServicesCache::Load() {
  EnsureStoresOpen();
  pairs_.clear();
  CAlertSERV_INST_NTFY_SERVDB& store = EnabledServiceStore();
  Entry entry{};
  Status status = store.DBAlertRecFindFirst(kEnabledServiceByService, 0, nullptr, entry);
  for (; status == kOk; status = store.DBAlertRecFindNext(entry)) {
    pairs_.insert({entry.serviceGuid, entry.managerGuid});
  }
}

bool EnabledServicesCache::Contains(const GUID& service, const GUID& manager) const {
  return pairs_.contains({service, manager});
}

EnabledServicesCache& TheEnabledServices() {
  static EnabledServicesCache cache;
  return cache;
}

}  // namespace alerting
