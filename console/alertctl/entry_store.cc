// SPDX-License-Identifier: MIT
#include "console/alertctl/entry_store.h"

#include "companions/alertrecords/user_entry.h"
#include "companions/alertstore/store_lock.h"

namespace alertctl {
namespace {

using namespace alertstore;  // NOLINT: every kind of user record is written here
using platform::GUID;

void Fill(const Entry& entry, auto& user, ALRTUSRINSTSERV& link) {
  const std::uint32_t enabled = entry.enabled ? 1 : 0;
  alertrecords::FillUserRecord(entry.user, entry.user_name, entry.address, enabled, user);
  alertrecords::FillUserLink(entry.user, entry.service, entry.service_name, link);
  link.userEnabled = enabled;
}

template <class User>
Status AddBoth(const Entry& entry, CAlertUsrInstServDB& links) {
  User user{};
  ALRTUSRINSTSERV link{};
  Fill(entry, user, link);
  link.recordType = entry.record_type;
  GUID link_id{}, user_id{};
  return links.DBAlertRecAdd(link, link_id, user, user_id);
}

template <class Store>
Status Change(const Entry& entry, CAlertUsrInstServDB& links, ALRTUSRINSTSERV& link, Store& users) {
  typename Store::RecordType user{};
  const Status found =
      users.DBAlertRecFindFirst(Store::kSelectors.by_id, sizeof(GUID), &link.userRecordId, user);
  if (found != kOk && found != kNotFound) return found;
  Fill(entry, user, link);
  const Status written =
      found == kOk ? users.DBAlertRecUpdate(user) : users.DBAlertRecAdd(user, link.userRecordId);
  return written == kOk ? links.DBAlertRecUpdate(link) : written;
}

template <class Store>
Status Save(const Entry& entry) {
  CAlertUsrInstServDB links;
  Store users;
  if (const Status status = links.DBOpen()) return status;
  if (const Status status = users.DBOpen()) return status;
  // A console adds an entry under the same lock: what it added is found here, not added again.
  const StoreLock lock(users);
  if (lock.Result() != kOk) return lock.Result();
  ALRTUSRINSTSERV link{};
  const Status found = alertrecords::FindUserLink(links, entry.user, entry.service, link);
  if (found != kOk && found != kNotFound) return found;
  return found == kOk ? Change(entry, links, link, users) : AddBoth<typename Store::RecordType>(entry, links);
}

}  // namespace

bool HasUsers(std::uint32_t record_type) {
  return alertrecords::ForUserType(record_type, false, [](auto) { return true; });
}

std::size_t AddressLimit(std::uint32_t record_type) {
  return alertrecords::ForUserType(record_type, std::size_t{0}, [](auto type) { return type.kAddressLimit; });
}

Status SaveEntry(const Entry& entry) {
  return alertrecords::ForUserType(entry.record_type, kInvalidArgument,
                                   [&](auto type) { return Save<typename decltype(type)::Store>(entry); });
}

}  // namespace alertctl
