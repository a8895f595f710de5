// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"
#include "alerting/services/default_message.h"
#include "alerting/services/general_fields.h"
#include "alerting/services/user_base.h"

namespace alerting {

/// Writes the common record with its virgin mark cleared: the working copy becomes the saved copy, then the
/// stored record. False, after a message, when the store did not take it.
bool SaveCommonRecord(ALRTNTFYSERV& common, ALRTNTFYSERV& saved);

/// Reads the common record of `id` for a reload. False, after a message and with `common` untouched, when it
/// is gone.
bool ReadCommonRecord(const GUID& id, ALRTNTFYSERV& common);

/// What a type does differently while it keeps its specific record.
struct RecordRules {
  bool silent_load = false;        ///< a failed load shows no message
  bool reports_error_code = true;  ///< a failed add shows the store's status first
};

/// Loads, reloads, saves and adds a service with one service-specific record. `Record` is the record;
/// everything that follows from its fields (default message, general fields) follows from its row in
/// record_fields.h. The working copy is what pages edit; the saved copy is the record as it was last read or written.
template <class Record, class Base, RecordRules kRules = RecordRules{}>
class SpecificRecord : public Base {
 public:
  using Base::Base;

  bool LoadSpecificRecord(CAlertNtfyServDB& store) override;
  void* GetSpecificRecord() override { return &primary_; }
  bool ReloadRecords() override;
  bool SaveRecords() override;
  bool AddCopy(CAlertNtfyServDB& store, ALRTNTFYSERV& common, GUID& new_id) override;

  bool GetDefaultMessage(DefaultMessage& message) const override {
    if constexpr (kHas<Record, kMessage>) ReadDefaultMessage(primary_, message);
    return true;
  }
  bool SetDefaultMessage(const DefaultMessage& message) override {
    if constexpr (kHas<Record, kMessage>) WriteDefaultMessage(message, primary_);
    return true;
  }
  bool InitWithDefaultMessage(ALERTRESPREC& response) const override;

  GeneralFields GetGeneralFields() const { return ReadGeneralFields(this->Common(), primary_); }
  bool SetGeneralFields(const GeneralFields& fields) {
    return WriteGeneralFields(fields, this->Common(), primary_);
  }

  Record& Primary() { return primary_; }
  const Record& Primary() const { return primary_; }
  const Record& SavedPrimary() const { return saved_primary_; }

 protected:
  static bool LoadFailed(int string_id) { return kRules.silent_load ? false : Fail(string_id); }

  /// What a modem-linked type does besides, at the same places: after the primary record was read, inside the
  /// specific store's lock after it was written, and before the pair of records is added.
  virtual void LoadBackup(CAlertNtfyServDB&, RecordStore<Record>&) {}
  virtual Status SaveBackup(RecordStore<Record>&) { return kOk; }
  virtual bool AddBackup(CAlertNtfyServDB&, ALRTNTFYSERV&) { return true; }

 private:
  Status SavePrimary(RecordStore<Record>& store);

  Record primary_{};
  Record saved_primary_{};
  ALRTNTFYSERV saved_common_{};
};

template <class Record, class Base, RecordRules kRules>
bool SpecificRecord<Record, Base, kRules>::LoadSpecificRecord(CAlertNtfyServDB& store) {
  EnsureStoresOpen();
  RecordStore<Record>* specific = store.SpecificStore<Record>();
  if (specific == nullptr) return LoadFailed(kIdsSpecificStoreMissing);
  Record read{};
  read.guid = this->Common().specificRecordId;
  if (specific->DBAlertRecRetrieve(read.guid, read) != kOk) return LoadFailed(kIdsSpecificReadFailed);
  primary_ = read;
  LoadBackup(store, *specific);
  saved_primary_ = primary_;
  return true;
}

template <class Record, class Base, RecordRules kRules>
bool SpecificRecord<Record, Base, kRules>::ReloadRecords() {
  EnsureStoresOpen();
  ALRTNTFYSERV read{};
  if (!ReadCommonRecord(this->ServiceId(), read)) return false;
  if (ServiceTypeFromRecordType(read.recordType) != this->Type().code) return Fail(kIdsUnexpectedType);
  this->Common() = read;
  saved_common_ = read;
  return LoadSpecificRecord(ServiceStore());
}

template <class Record, class Base, RecordRules kRules>
bool SpecificRecord<Record, Base, kRules>::SaveRecords() {
  EnsureStoresOpen();
  if (!SaveCommonRecord(this->Common(), saved_common_)) return false;
  RecordStore<Record>* specific = ServiceStore().template SpecificStore<Record>();
  if (specific == nullptr) return Fail(kIdsSpecificUpdateFailed);
  StoreLock lock(*specific);
  const Status primary = lock.Result() == kOk ? SavePrimary(*specific) : lock.Result();
  const Status backup = lock.Result() == kOk ? SaveBackup(*specific) : lock.Result();
  lock.Release();
  if (primary != kOk || backup != kOk) return Fail(kIdsSpecificUpdateFailed);
  saved_primary_ = primary_;
  return true;
}

template <class Record, class Base, RecordRules kRules>
Status SpecificRecord<Record, Base, kRules>::SavePrimary(RecordStore<Record>& store) {
  Record stored = primary_;
  store.DBAlertRecRetrieve(stored.guid, stored);  // as every update does; what it answers changes nothing
  saved_primary_ = primary_;
  return store.DBAlertRecUpdate(primary_);
}

template <class Record, class Base, RecordRules kRules>
bool SpecificRecord<Record, Base, kRules>::AddCopy(CAlertNtfyServDB& store, ALRTNTFYSERV& common,
                                                   GUID& new_id) {
  EnsureStoresOpen();
  new_id = kNullGuid;
  if (!AddBackup(store, common)) return false;
  Record added = primary_;
  added.guid = kNullGuid;
  GUID specific_id{};
  const Status status = store.DBAlertRecAdd(common, new_id, added, specific_id);
  if (status == kOk) return true;
  if (kRules.reports_error_code) ShowErrorCode(status);
  return Fail(kIdsAddFailed);
}

template <class Record, class Base, RecordRules kRules>
bool SpecificRecord<Record, Base, kRules>::InitWithDefaultMessage(ALERTRESPREC& response) const {
  if constexpr (!kHas<Record, kMessage> || std::is_base_of_v<CNtfyServiceMailBase, Base>) {
    return Base::InitWithDefaultMessage(response);
  } else {
    DefaultMessage message;
    if (!GetDefaultMessage(message)) return false;
    InitResponseMessage(message, response);
    if constexpr (kHas<Record, kSubject>) InitResponseSubject(message, response);
    return true;
  }
}

}  // namespace alerting
