// SPDX-License-Identifier: MIT
#include "alerting/services/specific_record.h"

namespace alerting {

bool SaveCommonRecord(ALRTNTFYSERV& common, ALRTNTFYSERV& saved) {
  CAlertNtfyServDB& store = ServiceStore();
  StoreLock lock(store);
  if (lock.Result() != kOk) return Fail(kIdsCommonUpdateFailed);
  ALRTNTFYSERV stored = common;
  store.DBAlertRecRetrieve(stored.serviceId, stored);  // its answer changes nothing
  common.virgin = 0;
  saved = common;
  const Status status = store.DBAlertRecUpdate(common);
  lock.Release();
  return status == kOk ? true : Fail(kIdsCommonUpdateFailed);
}

bool ReadCommonRecord(const GUID& id, ALRTNTFYSERV& common) {
  ALRTNTFYSERV read{};
  read.serviceId = id;
  if (ServiceStore().DBAlertRecRetrieve(id, read) != kOk) return Fail(kIdsCommonReadFailed);
  common = read;
  return true;
}

}  // namespace alerting
