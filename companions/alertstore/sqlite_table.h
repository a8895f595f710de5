// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "companions/alertstore/engine.h"
#include "companions/alertstore/file_lock.h"
#include "companions/alertstore/sqlite_database.h"
#include "companions/alertstore/sqlite_statement.h"

namespace alertstore {

/// A store's table in the embedded database.
class SqliteTable : public Table {
 public:
  SqliteTable(std::shared_ptr<Database> database, const StoreSchema& schema);
  ~SqliteTable() override;

  /// A status when the store's table is there and cannot be read. With the database to itself.
  Status Check();

  Status FindFirst(const Selector& selector, std::string_view key, void* out) override;
  Status FindFirst(void* out) override;
  Status FindNext(void* out) override;
  Status Retrieve(const platform::GUID& id, void* out) override;
  Status Add(const void* record) override;
  Status AddPair(const void* record, const StoreSchema& other, const void* other_record) override;
  Status Update(const void* record) override;
  Status Delete(const platform::GUID& id) override;
  Status Lock() override;
  Status Unlock() override;

 private:
  // Most searches want the first record alone, and finding it is quicker without a bound on the rows.
  struct KeyedFind {
    KeyedFind(const StoreSchema& schema, const Selector& by);
    const std::uint32_t selector;
    Statement first;
    Statement next;
  };

  // Runs an operation with the database to itself.
  template <class Operation>
  Status Run(Operation operation);
  // The same for an operation on a table that is there; kNotFound where it is not.
  template <class Operation>
  Status Read(Operation operation);
  KeyedFind* FindOf(const Selector& selector);
  Status NextOfAll(void* out);
  Status FirstWithKey(void* out);
  Status NextWithKey(void* out);
  Status TakeRow(Statement& statement, void* out);
  // False for a row that has not the size of a record.
  bool CopyRecord(const Statement& statement, void* out) const;
  Status Insert(Statement& insert, std::string_view record);
  Status Change(Statement& statement);

  const std::shared_ptr<Database> database_;
  const StoreSchema schema_;
  FileLock lock_;

  // Held while the statements behind it go: other threads use the connection that they belong to.
  std::unique_lock<std::mutex> closing_;
  Statement scan_;
  std::vector<std::unique_ptr<KeyedFind>> finds_;
  Statement retrieve_;
  Statement insert_;
  Statement update_;
  Statement delete_;

  int seen_generation_ = 0;  // of the connection through which the table has been seen
  // The scan: the row it stands on and, when it has one, its key.
  enum class Scan { kNone, kAll, kWithKey } scan_kind_ = Scan::kNone;
  std::int64_t last_id_ = 0;
  KeyedFind* find_ = nullptr;
  std::string key_;
};

}  // namespace alertstore
