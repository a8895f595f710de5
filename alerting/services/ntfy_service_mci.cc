// SPDX-License-Identifier: MIT
#include "alerting/services/ntfy_service_mci.h"

namespace alerting {

bool CNtfyServiceMCI::GetUserExtra(std::uint32_t& ems_enabled, std::string& ems_address, const GUID& user) {
  EnsureStoresOpen();
  Record record{};
  if (!FindUserRecord(CAlertUSR_MCIDB::kSelectors.by_user, user, record)) return false;
  ems_enabled = record.emsEnabled;
  ems_address = record.emsAddress.View();
  return true;
}

bool CNtfyServiceMCI::SetUserExtra(std::uint32_t ems_enabled, const std::string& ems_address,
                                   const GUID& user) {
  EnsureStoresOpen();
  CAlertUSR_MCIDB& store = UserStore<CAlertUSR_MCIDB>();
  StoreLock lock(store);
  Record record{};
  if (lock.Result() != kOk || !FindUserRecord(CAlertUSR_MCIDB::kSelectors.by_user, user, record)) {
    lock.Release();
    return Fail(kIdsUserRereadFailed);
  }
  record.emsEnabled = ems_enabled;
  record.emsAddress.Assign(ems_address);
  const Status status = store.DBAlertRecUpdate(record);
  lock.Release();
  if (status != kOk) return Fail(kIdsUserUpdateFailed);
  SetCurrentUser(record);
  return true;
}

}  // namespace alerting
