// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

#include "companions/alertstore/engine.h"
#include "companions/alertstore/schema.h"
#include "companions/alertstore/status.h"
#include "platform/base/guid.h"

namespace alertstore {

class StoreBase;

/// The file handle of a store: locks the store against the other consoles, for one retrieve-then-update or
/// add.
class QEVDB {
 public:
  explicit QEVDB(StoreBase& store) : store_(store) {}
  QEVDB(const QEVDB&) = delete;
  QEVDB& operator=(const QEVDB&) = delete;

  /// Waits a few seconds at most, then kLockTimeout; kAlreadyLocked when this store object holds the lock.
  Status DBFileLock();
  /// kNotLocked when this store object holds no lock.
  Status DBFileUnlock();

 private:
  StoreBase& store_;
};

/// What the stores of all record types share. Until DBOpen has succeeded every operation answers
/// kStoreClosed.
class StoreBase {
 public:
  virtual ~StoreBase();
  StoreBase(const StoreBase&) = delete;
  StoreBase& operator=(const StoreBase&) = delete;

  /// Opens the store's file with the current engine; nothing happens when it is open.
  virtual Status DBOpen();
  bool IsOpen() const { return table_ != nullptr; }
  QEVDB& File() { return file_; }
  /// Deletes the record of that identity; kNotFound when there is none.
  Status DBAlertRecDelete(const platform::GUID& id);
  const StoreSchema& Schema() const { return schema_; }

 protected:
  explicit StoreBase(StoreSchema schema);

  Status FindFirst(std::uint32_t selector, std::uint32_t key_length, const void* key, void* out);
  Status FindNext(void* out);
  Status Retrieve(const platform::GUID& id, void* out);
  Status Add(const void* record);
  Status AddPair(const void* record, const StoreSchema& other, const void* other_record);
  Status Update(const void* record);

 private:
  friend class QEVDB;

  Status FindKey(const Selector& selector, std::string_view given, void* out);

  const StoreSchema schema_;
  std::shared_ptr<Engine> engine_;
  std::unique_ptr<Table> table_;
  QEVDB file_{*this};
  bool scanning_ = false;
};

/// The schema of a record's store, under the store's own file name.
template <class Record>
const StoreSchema& SchemaOf();

/// The identity that every record has in its first 16 bytes.
template <class Record>
platform::GUID IdentityOf(const Record& record) {
  platform::GUID id;
  std::memcpy(&id, &record, sizeof id);
  return id;
}

template <class Record>
void SetIdentity(Record& record, const platform::GUID& id) {
  std::memcpy(&record, &id, sizeof id);
}

/// The operations of one store. A failed operation leaves the caller's records and identities as they were.
template <class Record>
class RecordStore : public StoreBase {
 public:
  using RecordType = Record;

  RecordStore() : StoreBase(SchemaOf<Record>()) {}
  explicit RecordStore(StoreSchema schema) : StoreBase(std::move(schema)) {}

  /// Begins the store's scan and gives its first record. The records scanned are those whose field, named by
  /// `selector`, equals the key; with key length 0 all records. They come in the order in which they were
  /// added. A key shorter than the field stands for the key padded with zeros, so a name never finds a longer
  /// one.
  Status DBAlertRecFindFirst(std::uint32_t selector, std::uint32_t key_length, const void* key, Record& out) {
    return FindFirst(selector, key_length, key, &out);
  }

  /// The next record of the scan; kEndOfScan when it has no more, or when its DBAlertRecFindFirst failed.
  Status DBAlertRecFindNext(Record& out) { return FindNext(&out); }

  /// Reads the record whose identity the caller has set in `record`; the first argument is not looked at.
  Status DBAlertRecRetrieve(const platform::GUID& /*id*/, Record& record) {
    return Retrieve(IdentityOf(record), &record);
  }

  /// Adds a copy of the record under a fresh identity, which is written to `new_id` and into `record`.
  Status DBAlertRecAdd(Record& record, platform::GUID& new_id) {
    Record added = record;
    SetIdentity(added, platform::GUID::Generate());
    const Status status = Add(&added);
    if (status != kOk) return status;
    record = added;
    new_id = IdentityOf(added);
    return kOk;
  }

  /// Adds a record that brings its own identity, as starter data does; kInvalidArgument when that is null,
  /// kNotUnique when it is taken.
  Status AddWithIdentity(const Record& record) {
    if (IdentityOf(record).IsNull()) return kInvalidArgument;
    return Add(&record);
  }

  /// Replaces the record of the same identity; kNotFound when there is none.
  Status DBAlertRecUpdate(const Record& record) { return Update(&record); }

 protected:
  /// Adds both records under fresh identities in one transaction; `record`'s member `link` becomes the
  /// identity of `other`. Both buffers and both identities are written on success alone.
  template <class Other>
  Status AddLinked(Record& record, platform::GUID Record::*link, platform::GUID& new_id, Other& other,
                   platform::GUID& new_other_id) {
    Record added = record;
    Other added_other = other;
    SetIdentity(added, platform::GUID::Generate());
    SetIdentity(added_other, platform::GUID::Generate());
    added.*link = IdentityOf(added_other);
    const Status status = AddPair(&added, SchemaOf<Other>(), &added_other);
    if (status != kOk) return status;
    record = added;
    other = added_other;
    new_id = IdentityOf(added);
    new_other_id = IdentityOf(added_other);
    return kOk;
  }
};

}  // namespace alertstore
