// SPDX-License-Identifier: MIT
#include "alerting/services/modem_record.h"

namespace alerting {

bool FindModem(const GUID& id, ALRTSERV_MODEM& modem) {
  EnsureStoresOpen();
  return ModemStore().DBAlertRecFindFirst(kModemByIdentity, sizeof(GUID), &id, modem) == kOk;
}

void LinkBackup(CAlertNtfyServDB& store, const GUID& backup, ALRTNTFYSERV& common) {
  common.backupSpecificRecordId = backup;
  StoreLock lock(store);
  const Status status = lock.Result() == kOk ? store.DBAlertRecUpdate(common) : lock.Result();
  lock.Release();
  if (status != kOk) ShowMessage(kIdsCommonUpdateFailed);
}

}  // namespace alerting
