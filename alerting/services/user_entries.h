// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"
#include "alerting/services/user_base.h"
#include "alerting/services/user_list.h"
#include "companions/alertrecords/user_entry.h"

namespace alerting {

using alertrecords::AddressOf;

/// The user operations of a type whose users have records in a store of their own.
template <class Store, class Base>
class UserEntries : public Base {
 public:
  using Base::Base;
  using UserStoreClass = Store;
  using Record = typename Store::RecordType;

  bool GetUserEntry(const GUID& user, UserEntry& entry) override;
  bool SaveUserEntry(const GUID& user, const UserEntry& entry) override;
  bool GetUserAddress(const GUID& user, std::string& address) override;
  bool DeleteUser(const GUID& user) override;
  bool FillUserList(ui::ItemList& list) override;

  /// The user record last read or written.
  const Record& CurrentUser() const { return current_user_; }

 protected:
  bool FindUserRecord(std::uint32_t selector, const GUID& key, Record& record) {
    return UserStore<Store>().DBAlertRecFindFirst(selector, sizeof(GUID), &key, record) == kOk;
  }
  bool IsLinkedHere(const Record& record);
  void SetCurrentUser(const Record& record) { current_user_ = record; }

 private:
  /// Updates the record that was found, or adds a new one, which gets its identity.
  Status WriteUserRecord(bool found, Record& record);

  Record current_user_{};
};

/// The entry of a user without records: the console's name of the user, enabled.
void GetUnknownUserEntry(const GUID& user, UserEntry& entry);

template <class Store, class Base>
bool UserEntries<Store, Base>::GetUserEntry(const GUID& user, UserEntry& entry) {
  ALRTUSRINSTSERV link{};
  Record record{};
  if (!this->FindUserLink(user, link) ||
      !FindUserRecord(Store::kSelectors.by_id, link.userRecordId, record)) {
    GetUnknownUserEntry(user, entry);
    return true;
  }
  current_user_ = record;
  entry = {std::string(record.userName.View()), std::string(AddressOf(record).View()), record.userEnabled};
  return true;
}

template <class Store, class Base>
bool UserEntries<Store, Base>::SaveUserEntry(const GUID& user, const UserEntry& entry) {
  EnsureStoresOpen();
  ALRTUSRINSTSERV link{};
  const bool linked = this->FindUserLink(user, link);
  StoreLock lock(UserStore<Store>());
  Record record{};
  const bool locked = lock.Result() == kOk;
  const bool found = locked && linked && FindUserRecord(Store::kSelectors.by_id, link.userRecordId, record);
  alertrecords::FillUserRecord(user, entry.name, entry.address, entry.enabled, record);
  const Status status = locked ? WriteUserRecord(found, record) : lock.Result();
  lock.Release();
  const bool updating = locked ? found : linked;
  if (status != kOk) return Fail(updating ? kIdsUserUpdateFailed : kIdsUserAddFailed);
  current_user_ = record;
  return this->AddOrUpdateUserLink(user, record.guid, RecordTypeOf(this->Type().code), entry.enabled);
}

template <class Store, class Base>
Status UserEntries<Store, Base>::WriteUserRecord(bool found, Record& record) {
  Store& store = UserStore<Store>();
  GUID new_id{};
  return found ? store.DBAlertRecUpdate(record) : store.DBAlertRecAdd(record, new_id);
}

template <class Store, class Base>
bool UserEntries<Store, Base>::GetUserAddress(const GUID& user, std::string& address) {
  EnsureStoresOpen();
  Record record{};
  if (!FindUserRecord(Store::kSelectors.by_user, user, record)) return false;
  address = AddressOf(record).View();
  return true;
}

template <class Store, class Base>
bool UserEntries<Store, Base>::DeleteUser(const GUID& user) {
  ALRTUSRINSTSERV link{};
  if (!this->FindUserLink(user, link)) return this->DeleteUserLink(user);
  if (UserStore<Store>().DBAlertRecDelete(link.userRecordId) == kOk) return this->DeleteUserLink(user);
  Fail(kIdsUserDeleteFailed);
  this->DeleteUserLink(user);
  return false;
}

template <class Store, class Base>
bool UserEntries<Store, Base>::IsLinkedHere(const Record& record) {
  ALRTUSRINSTSERV link{};
  return UserLinkStore().DBAlertRecFindFirst(kLinkByUserRecord, sizeof(GUID), &record.guid, link) == kOk &&
         link.serviceId == this->ServiceId();
}

template <class Store, class Base>
bool UserEntries<Store, Base>::FillUserList(ui::ItemList& list) {
  EnsureStoresOpen();
  Store& store = UserStore<Store>();
  ListedUsers& listed = ListedUsers::StartAgain();
  Record record{};
  Status status = store.DBAlertRecFindFirst(Store::kSelectors.scan, 0, nullptr, record);
  for (; status == kOk && !listed.Full(); status = store.DBAlertRecFindNext(record)) {
    if (IsLinkedHere(record)) list.Add(record.userName.View(), listed.Keep(record.userId));
  }
  return listed.Empty() ? Fail(kIdsNoUsers) : true;
}

/// The one-call add of the mail types.
template <class Store, class Base>
class MailUsers : public UserEntries<Store, Base> {
 public:
  using UserEntries<Store, Base>::UserEntries;

  bool AddUserWithLink(const std::string& name, const std::string& address, const GUID& user) override {
    EnsureStoresOpen();
    typename Store::RecordType record{};
    alertrecords::FillUserRecord(user, name, address, 1, record);
    ALRTUSRINSTSERV link{};
    alertrecords::FillUserLink(user, this->ServiceId(), this->Common().name.View(), link);
    GUID link_id{}, user_record_id{};
    if (UserLinkStore().DBAlertRecAdd(link, link_id, record, user_record_id) == kOk) return true;
    return Fail(kIdsUserWithLinkFailed);
  }
};

}  // namespace alerting
