// SPDX-License-Identifier: MIT
// The links between users and services, which all types share.
#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"
#include "alerting/services/ntfy_service.h"
#include "companions/alertrecords/user_entry.h"

namespace alerting {

bool CNtfyService::FindUserLink(const GUID& user, ALRTUSRINSTSERV& link) {
  EnsureStoresOpen();
  return alertrecords::FindUserLink(UserLinkStore(), user, service_id_, link) == kOk;
}

bool CNtfyService::IsUserConfigured(const GUID& user) {
  ALRTUSRINSTSERV link;
  return FindUserLink(user, link);
}

bool CNtfyService::AddOrUpdateUserLink(const GUID& user, const GUID& user_record, std::uint32_t record_type,
                                       std::uint32_t enabled) {
  ALRTUSRINSTSERV link{};
  const bool found = FindUserLink(user, link);
  alertrecords::FillUserLink(user, service_id_, common_.name.View(), link);
  link.userRecordId = user_record;
  link.userEnabled = enabled;
  if (found) return UserLinkStore().DBAlertRecUpdate(link) == kOk ? true : Fail(kIdsLinkUpdateFailed);
  link.recordType = record_type;
  GUID new_id{};
  return UserLinkStore().DBAlertRecAdd(link, new_id) == kOk ? true : Fail(kIdsLinkAddFailed);
}

bool CNtfyService::DeleteUserLink(const GUID& user) {
  ALRTUSRINSTSERV link;
  if (!FindUserLink(user, link)) return false;
  UserLinkStore().DBAlertRecDelete(link.guid);
  return true;
}

}  // namespace alerting
