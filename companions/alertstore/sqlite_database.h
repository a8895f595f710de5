// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>
#include <sys/types.h>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "companions/alertstore/schema.h"
#include "companions/alertstore/sqlite_statement.h"
#include "companions/alertstore/status.h"

namespace alertstore {

/// The table name of a store, quoted for a statement.
std::string TableName(const StoreSchema& schema);
/// The expression whose value is the key field of a record, as the indexes hold it.
std::string KeyExpression(const Selector& selector);

/// One connection to the database of a data directory, shared by all its tables. Its user holds Mutex()
/// during every call. A connection is of no use in a forked child.
class Database {
 public:
  /// Makes the directory and the database where they are missing.
  static Status Open(const std::string& directory, std::shared_ptr<Database>& database);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  std::mutex& Mutex() { return mutex_; }
  sqlite3* Connection() { return connection_.get(); }
  /// The file whose bytes are the locks of the stores.
  const std::string& LockFile() const { return lock_file_; }

  /// Makes the store's table and indexes where they are missing.
  Status EnsureTable(const StoreSchema& schema);

  /// Runs `body` in a write transaction of its own, which is committed when the body answers kOk, else
  /// undone.
  Status Write(const std::function<Status()>& body);

  /// All reads between the two see one moment, and writes answer kInsideRead. Not nested.
  Status BeginRead();
  void EndRead();

  /// A scan may leave its statement running between two calls, so that its reads and all others meanwhile
  /// share one read transaction. True when it may; the statement is then reset before the next write of this
  /// process and after a short time, since a reader that stands still keeps the journal from being emptied.
  bool KeepScanRunning();
  /// Resets every running statement. Scans go on from where they were.
  void EndScans();

 private:
  struct Closer {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
  };

  explicit Database(const std::string& directory);

  static int WaitWhileBusy(void* database, int count);
  Status Connect();
  Status Configure();
  Status Run(const std::string& sql);
  Status HasTable(const StoreSchema& schema, bool& found);
  Status CreateTable(const StoreSchema& schema);
  void LimitScans();

  const std::string file_;
  const std::string lock_file_;
  const pid_t process_;
  std::unique_ptr<sqlite3, Closer> connection_;
  std::chrono::steady_clock::time_point busy_since_;
  bool inside_read_ = false;

  std::mutex mutex_;
  std::condition_variable scan_state_changed_;
  bool scan_running_ = false;
  bool closing_ = false;
  std::chrono::steady_clock::time_point scan_limit_;
  std::thread limiter_;

  Statement begin_write_{"BEGIN IMMEDIATE"};
  Statement commit_{"COMMIT"};
};

}  // namespace alertstore
