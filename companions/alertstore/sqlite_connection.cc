// SPDX-License-Identifier: MIT
#include "companions/alertstore/sqlite_connection.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <initializer_list>

#include "companions/alertstore/problem.h"
#include "companions/alertstore/sqlite_layout.h"
#include "companions/alertstore/sqlite_statement.h"
#include "platform/base/private_file.h"

namespace alertstore {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kBusyLimit = std::chrono::seconds(5);
constexpr useconds_t kPollMicroseconds = 100;
constexpr int kFlags = SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_NOFOLLOW;

Status CheckFiles(const std::string& file) {
  platform::FileError error;
  for (const char* suffix : {"", "-wal", "-shm", "-journal"})
    if (!platform::CheckPrivateFile(file + suffix, error)) return Fail(error);
  return kOk;
}

Status JournalCannotBeRead(const std::string& file) {
  return Fail(kReadOnly,
              file + "-wal holds the last records, and can be read only where files can be made beside it");
}

}  // namespace

// "?", "#" and "%" have a meaning of their own in a URI.
std::string SnapshotUri(const std::string& file) {
  std::string uri = "file:";
  for (const char c : file) {
    if (c == '?')
      uri += "%3f";
    else if (c == '#')
      uri += "%23";
    else if (c == '%')
      uri += "%25";
    else
      uri += c;
  }
  return uri + "?immutable=1";
}

Status Connection::Open(const std::string& file, std::unique_ptr<Connection>& connection) {
  if (const Status status = CheckFiles(file); status != kOk) return status;
  std::unique_ptr<Connection> opened(new Connection(file));
  Status status = opened->OpenFile();
  // Where the journal's files cannot be made the database can be read as long as it has no journal.
  const bool may_make = access(platform::ParentOf(file).c_str(), W_OK) == 0;
  if (status != kOk && status != kCorrupt && !may_make)
    status = opened->HasJournal() ? JournalCannotBeRead(file) : opened->OpenSnapshot();
  if (status == kOk) connection = std::move(opened);
  return status;
}

Status Connection::OpenFile() {
  MarkOf(file_, mark_);
  if (const Status status = OpenUri(file_, SQLITE_OPEN_READWRITE); status != kOk) return status;
  return Configure();
}

Status Connection::OpenSnapshot() {
  snapshot_ = true;
  MarkOf(file_, mark_);
  const Status status = OpenUri(SnapshotUri(file_), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
  return status == kOk ? Configure() : status;
}

Status Connection::OpenUri(const std::string& uri, int flags) {
  sqlite3* connection = nullptr;
  const int result = sqlite3_open_v2(uri.c_str(), &connection, kFlags | flags, nullptr);
  connection_.reset(connection);  // a failed open may leave one to be closed
  if (result != SQLITE_OK) return StatusOfResult(result, connection);
  return StatusOfResult(sqlite3_busy_handler(connection, WaitWhileBusy, this), connection);
}

// SQLite's own waits grow to 100 milliseconds a step, so that one of two busy consoles hardly ever gets its turn.
int Connection::WaitWhileBusy(void* connection, int count) {
  auto* self = static_cast<Connection*>(connection);
  if (count == 0) self->busy_since_ = Clock::now();
  if (Clock::now() - self->busy_since_ >= kBusyLimit) return 0;
  usleep(kPollMicroseconds);
  return 1;
}

// Every change is durable when it is acknowledged. The look at the version reads the file, and so finds out whether it
// is a database that can be read.
Status Connection::Configure() {
  for (const std::string& pragma : {std::string("PRAGMA synchronous=FULL"), std::string("PRAGMA mmap_size=0"),
                                    "PRAGMA cache_size=-" + std::to_string(kPageCacheKiB)})
    if (const Status status = RunSql(Get(), pragma); status != kOk) return status;
  return CheckVersion();
}

Status Connection::CheckVersion() {
  int version = 0;
  if (const Status status = ReadLayoutVersion(Get(), version); status != kOk) return status;
  if (version <= kLayoutVersion) return kOk;
  return Fail(kCorrupt, file_ + " was made by a newer version of this program: install that one");
}

// Two processes that make the database at once get in each other's way without SQLite calling the busy handler, hence
// the loop.
Status Connection::ConfigureForWriting() {
  for (const char* pragma : {kPageSizePragma, "PRAGMA journal_mode=WAL"}) {
    Status status = RunSql(Get(), pragma);
    for (int count = 0; status == kLockTimeout && WaitWhileBusy(this, count) != 0; ++count)
      status = RunSql(Get(), pragma);
    if (status != kOk) return status;
  }
  return kOk;
}

bool Connection::HasJournal() const {
  struct stat journal {};
  return stat((file_ + "-wal").c_str(), &journal) == 0 && journal.st_size > 0;
}

bool Connection::MarkOf(const std::string& file, FileMark& mark) {
  struct stat found {};
  if (lstat(file.c_str(), &found) != 0) return false;
  mark = {found.st_dev, found.st_ino, found.st_size, found.st_mtim};
  return true;
}

bool Connection::IsCurrent() const {
  FileMark now;
  if (!MarkOf(file_, now) || now.device != mark_.device || now.inode != mark_.inode) return false;
  return !snapshot_ || (now.size == mark_.size && now.changed.tv_sec == mark_.changed.tv_sec &&
                        now.changed.tv_nsec == mark_.changed.tv_nsec && !HasJournal());
}

}  // namespace alertstore
