// SPDX-License-Identifier: MIT
#include "console/alertctl_entry_store.h"

#include <map>

#include "companions/alertstore/stores.h"

namespace alertctl {
namespace {

using namespace alertstore;  // NOLINT: every kind of user record is written here
using platform::GUID;

/// Holds a store's file lock for the length of a block.
class FileLock {
 public:
  explicit FileLock(QEVDB& file) : file_(file), status_(file.DBFileLock()) {}
  ~FileLock() {
    if (status_ == kOk) file_.DBFileUnlock();
  }
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  Status Result() const { return status_; }

 private:
  QEVDB& file_;
  const Status status_;
};

/// kNotFound when the user is not linked to the service.
Status FindLink(CAlertUsrInstServDB& links, const Entry& entry, ALRTUSRINSTSERV& link) {
  Status status = links.DBAlertRecFindFirst(kLinkByUser, sizeof(GUID), &entry.user, link);
  while (status == kOk && link.serviceId != entry.service) status = links.DBAlertRecFindNext(link);
  return status == kEndOfScan ? kNotFound : status;
}

void FillLink(const Entry& entry, ALRTUSRINSTSERV& link) {
  link.serviceId = entry.service;
  link.userId = entry.user;
  link.serviceName.Assign(entry.service_name);
  link.userEnabled = entry.enabled ? 1 : 0;
}

/// The user store of one type; `address` is the member that the type keeps the address in.
template <class Store, auto address>
class UserStore {
 public:
  static constexpr std::size_t kAddressLimit =
      std::remove_reference_t<decltype(std::declval<typename Store::RecordType>().*address)>::kMaxLength;

  static Status Save(const Entry& entry) {
    CAlertUsrInstServDB links;
    Store users;
    if (const Status status = links.DBOpen()) return status;
    if (const Status status = users.DBOpen()) return status;
    // A console adds an entry under the same lock: what it added is found here, not added again.
    const FileLock lock(users.File());
    if (lock.Result() != kOk) return lock.Result();
    ALRTUSRINSTSERV link{};
    const Status found = FindLink(links, entry, link);
    if (found != kOk && found != kNotFound) return found;
    return found == kOk ? Change(entry, links, link, users) : AddBoth(entry, links);
  }

 private:
  using User = typename Store::RecordType;

  static void Fill(const Entry& entry, User& user) {
    user.userId = entry.user;
    user.userName.Assign(entry.user_name);
    (user.*address).Assign(entry.address);
    user.userEnabled = entry.enabled ? 1 : 0;
  }

  static Status AddBoth(const Entry& entry, CAlertUsrInstServDB& links) {
    User user{};
    ALRTUSRINSTSERV link{};
    Fill(entry, user);
    FillLink(entry, link);
    link.recordType = entry.record_type;
    GUID link_id{}, user_id{};
    return links.DBAlertRecAdd(link, link_id, user, user_id);
  }

  static Status Change(const Entry& entry, CAlertUsrInstServDB& links, ALRTUSRINSTSERV& link, Store& users) {
    User user{};
    const Status found =
        users.DBAlertRecFindFirst(Store::kSelectors.by_id, sizeof(GUID), &link.userRecordId, user);
    if (found != kOk && found != kNotFound) return found;
    Fill(entry, user);
    const Status written =
        found == kOk ? users.DBAlertRecUpdate(user) : users.DBAlertRecAdd(user, link.userRecordId);
    if (written != kOk) return written;
    FillLink(entry, link);
    return links.DBAlertRecUpdate(link);
  }
};

struct UserType {
  Status (*save)(const Entry& entry);
  std::size_t address_limit;
};

template <class Store, auto address>
constexpr UserType kType = {UserStore<Store, address>::Save, UserStore<Store, address>::kAddressLimit};

/// By record type; null for a type without users.
const UserType* FindUserType(std::uint32_t record_type) {
  static const std::map<std::uint32_t, UserType> types = {
      {1, kType<CAlertUSR_MHSDB, &ALRTUSR_MHSSERVICEREC::userAddress>},
      {3, kType<CAlertUSR_MCIDB, &ALRTUSR_MCISERVICEREC::userAddress>},
      {4, kType<CAlertUSR_COMPUDB, &ALRTUSR_COMPUSERVICEREC::userAddress>},
      {5, kType<CAlertUSR_SMTPDB, &ALRTUSR_SMTPSERVICEREC::userAddress>},
      {6, kType<CAlertUSR_MAPIDB, &ALRTUSR_MAPISERVICEREC::userAddress>},
      {7, kType<CAlertUSR_CCMAILDB, &ALRTUSR_CCMAILSERVICEREC::userAddress>},
      {11, kType<CAlertUSR_APAGEDB, &ALRTUSR_APAGESERVICEREC::pinNumber>},
      {12, kType<CAlertUSR_NPAGEDB, &ALRTUSR_NPAGESERVICEREC::phoneNumber>}};
  const auto type = types.find(record_type);
  return type != types.end() ? &type->second : nullptr;
}

}  // namespace

bool HasUsers(std::uint32_t record_type) { return FindUserType(record_type) != nullptr; }

std::size_t AddressLimit(std::uint32_t record_type) { return FindUserType(record_type)->address_limit; }

Status SaveEntry(const Entry& entry) { return FindUserType(entry.record_type)->save(entry); }

}  // namespace alertctl
