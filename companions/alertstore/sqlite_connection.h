// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>
#include <sys/types.h>

#include <chrono>
#include <memory>
#include <string>

#include "companions/alertstore/status.h"

namespace alertstore {

/// Keeps a whole record in one page.
inline constexpr int kPageSize = 8192;
/// Counts only for a file without pages.
inline constexpr char kPageSizePragma[] = "PRAGMA page_size=8192";
/// A file that nobody writes to, as a URI: it is read without locks, and nothing is made beside it.
std::string SnapshotUri(const std::string& file);
/// The pages of the database that one console keeps in memory, in KiB: the records of some ten thousand services.
inline constexpr int kPageCacheKiB = 64 * 1024;

/// An open connection to a database file, with the store's settings. The file is not mapped into memory: one that is cut
/// short or cannot be read then gives a status instead of ending the program.
class Connection {
 public:
  /// Opens the file for reading and writing, or for reading alone where it may not be written. Nothing is made, and
  /// nothing is written but the journal's own files. kCorrupt for a file of a newer program, too.
  static Status Open(const std::string& file, std::unique_ptr<Connection>& connection);

  sqlite3* Get() const { return connection_.get(); }
  /// False once the name stands for another file or none. Asks the file system.
  bool IsCurrent() const;
  /// True for a file in a directory where not even the journal's files can be made. It is read as it lies there, so
  /// whoever reads it must see that IsCurrent.
  bool IsSnapshot() const { return snapshot_; }

  /// Prepares a new or foreign file for its first write: page size and journal.
  Status ConfigureForWriting();

 private:
  struct Closer {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
  };
  struct FileMark {
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    timespec changed{};
  };

  explicit Connection(std::string file) : file_(std::move(file)) {}

  static int WaitWhileBusy(void* connection, int count);
  static bool MarkOf(const std::string& file, FileMark& mark);
  Status OpenFile();
  Status OpenSnapshot();
  Status OpenUri(const std::string& uri, int flags);
  Status Configure();
  Status CheckVersion();
  bool HasJournal() const;

  const std::string file_;
  std::unique_ptr<sqlite3, Closer> connection_;
  FileMark mark_;
  bool snapshot_ = false;
  std::chrono::steady_clock::time_point busy_since_;
};

}  // namespace alertstore
