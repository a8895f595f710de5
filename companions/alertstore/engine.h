// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string_view>

#include "companions/alertstore/schema.h"
#include "companions/alertstore/status.h"
#include "platform/base/guid.h"

namespace alertstore {

/// One open record file. Records are passed as their bytes, `record_size` of them, with the identity in the
/// first 16. A failed operation leaves the caller's buffer and the stored records as they were. Nothing here
/// throws.
class Table {
 public:
  /// Ends its scan, gives its lock back and closes the file.
  virtual ~Table() = default;

  /// Begins a scan of the records whose `selector` field equals `key`, in the order of adding, and gives its
  /// first record; kNotFound when there is none. A text key holds no zero byte; any other has the width of
  /// the field.
  virtual Status FindFirst(const Selector& selector, std::string_view key, void* out) = 0;
  /// Begins a scan of all records in the order of adding. Scans pass over a record that has not the size of a record
  /// and note it (LeftOutRecords).
  virtual Status FindFirst(void* out) = 0;
  /// The next record of the scan; kEndOfScan after its last one. A record that was deleted since is skipped.
  virtual Status FindNext(void* out) = 0;
  /// Reads the record of that identity; kNotFound when there is none.
  virtual Status Retrieve(const platform::GUID& id, void* out) = 0;

  /// Each write is durable when it answers kOk. Adding under a taken identity or unique name is kNotUnique,
  /// changing or deleting a record that is not there kNotFound.
  virtual Status Add(const void* record) = 0;
  /// Adds a record here and one to another store of the same engine: both or neither.
  virtual Status AddPair(const void* record, const StoreSchema& other, const void* other_record) = 0;
  virtual Status Update(const void* record) = 0;
  virtual Status Delete(const platform::GUID& id) = 0;

  /// Keeps other consoles, and other tables of this file, from locking it; the reads and writes of those that
  /// do not lock go on. Waits for a bounded time, then answers kLockTimeout. A lock ends with its table or
  /// its process.
  virtual Status Lock() = 0;
  virtual Status Unlock() = 0;
};

/// Where records are kept. Safe to use from several threads; a table belongs to one of them at a time.
class Engine {
 public:
  virtual ~Engine() = default;

  /// Opens the store's file. One that is missing counts as empty and is made by the first write. On failure `table` stays
  /// as it was.
  virtual Status Open(const StoreSchema& schema, std::unique_ptr<Table>& table) = 0;

  /// Until EndRead, all reads of this process see the records of one moment, and writes answer kInsideRead.
  /// Scopes may be nested.
  virtual Status BeginRead() = 0;
  virtual void EndRead() = 0;
};

/// The engine that stores use from their next DBOpen on. Until SetEngine was called, and after
/// SetEngine(nullptr), it is the embedded one, whose files are in platform::DataDirectory() as it is when a
/// store is opened.
std::shared_ptr<Engine> CurrentEngine();
void SetEngine(std::shared_ptr<Engine> engine);

/// A consistent read for the length of a block.
class ReadScope {
 public:
  explicit ReadScope(Engine& engine) : engine_(engine), status_(engine.BeginRead()) {}
  ~ReadScope() {
    if (status_ == kOk) engine_.EndRead();
  }
  ReadScope(const ReadScope&) = delete;
  ReadScope& operator=(const ReadScope&) = delete;

  /// kOk when the reads in the block are consistent.
  Status Result() const { return status_; }

 private:
  Engine& engine_;
  const Status status_;
};

}  // namespace alertstore
