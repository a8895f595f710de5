// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <thread>

#include "companions/alertstore/schema.h"
#include "companions/alertstore/sqlite_connection.h"
#include "companions/alertstore/sqlite_statement.h"
#include "companions/alertstore/status.h"

namespace alertstore {

/// The database of a data directory, shared by all its tables. Its user holds Mutex() during every call. Reading makes
/// nothing: until the first write a directory or a file that is not there is a database without records. Of no use in a
/// forked child.
class Database {
 public:
  /// Fails for a database that cannot be read, and for a missing one that could not be made.
  static Status Open(const std::string& directory, std::shared_ptr<Database>& database);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  std::mutex& Mutex() { return mutex_; }
  /// The mutex for a table that ends. Not locked in a forked child, where the thread that had it may not exist.
  std::unique_lock<std::mutex> LockToClose();
  sqlite3* Connection() { return connection_ ? connection_->Get() : nullptr; }
  /// Counts the connections: what was learned through another one may be wrong now.
  int Generation() const { return generation_; }
  /// The file whose bytes are the locks of the stores.
  const std::string& LockFile() const { return lock_file_; }
  /// Makes the directory where it is missing; a status for one that is not fit for use.
  Status PrepareDirectory();

  /// Before each read: kNotFound while there is no database.
  Status Reading();
  /// Before each scan and write: kCorrupt when the file has lost its name to another one, or altogether. A console that
  /// wrote on would tell of success and lose the record, and the journal left behind belongs to no other file.
  Status CheckFile();

  /// Runs `body` in a write transaction of its own, which is committed when the body answers kOk, else undone. Before
  /// it, what is missing of the database is made, and the table of `schema` where it is not one of a site's.
  Status Write(const StoreSchema& schema, const std::function<Status()>& body);

  /// All reads between the two see one moment, and writes answer kInsideRead. Not nested.
  Status BeginRead();
  void EndRead();

  /// A scan may leave its statement running between two calls, so that its reads and all others meanwhile share one read
  /// transaction. True when it may; the statement is then reset before the next write of this process and after a short
  /// time, since a reader that stands still keeps the journal from being emptied.
  bool KeepScanRunning();
  /// Resets every running statement. Scans go on from where they were.
  void EndScans();

 private:
  explicit Database(const std::string& directory);

  Status Connect();
  void Disconnect();
  Status PrepareToWrite(const StoreSchema& schema);
  Status ConnectForWriting();
  Status CreateMissing(const StoreSchema& schema);
  Status Transaction(const std::function<Status()>& body);
  Status BeginSnapshot();
  void LimitScans();

  const std::string directory_;
  const std::string file_;
  const std::string lock_file_;
  const pid_t process_;
  std::unique_ptr<alertstore::Connection> connection_;
  int generation_ = 0;
  std::set<std::string> known_tables_;  // of the present connection
  int writable_generation_ = 0;         // of the connection that has found or made the whole layout
  bool inside_read_ = false;
  bool read_of_nothing_ = false;  // a consistent read began before there was a database

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
