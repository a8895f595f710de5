// SPDX-License-Identifier: MIT
#include "companions/alertstore/sqlite_database.h"

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "companions/alertstore/guarded.h"
#include "companions/alertstore/problem.h"
#include "companions/alertstore/sqlite_layout.h"
#include "platform/base/private_file.h"

namespace alertstore {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kScanTime = std::chrono::milliseconds(20);
// What SQLite takes, less the longest suffix that it gives to files of its own.
constexpr std::size_t kMaxPath = 512 - 9;

// A thread of this component takes no signals: they are the business of the program that loaded it.
class SignalsBlocked {
 public:
  SignalsBlocked() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  ~SignalsBlocked() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  SignalsBlocked(const SignalsBlocked&) = delete;
  SignalsBlocked& operator=(const SignalsBlocked&) = delete;

 private:
  sigset_t before_;
};

}  // namespace

Status Database::Open(const std::string& directory, std::shared_ptr<Database>& database) {
  std::shared_ptr<Database> opened(new Database(directory));
  if (opened->file_.size() > kMaxPath)
    return Fail(kPathTooLong, "the path of the data directory is too long: at most " +
                                  std::to_string(kMaxPath - opened->file_.size() + directory.size()) +
                                  " bytes");
  platform::FileError error;
  if (!platform::CouldPreparePrivateDirectory(directory, error)) return Fail(error);
  const std::lock_guard lock(opened->mutex_);
  const Status status = opened->Reading();
  if (status == kOk || status == kNotFound) database = std::move(opened);
  return status == kNotFound ? kOk : status;
}

Database::Database(const std::string& directory)
    : directory_(directory),
      file_(directory + "/alerting.db"),
      lock_file_(directory + "/alerting.lock"),
      process_(getpid()) {}

Database::~Database() {
  if (!limiter_.joinable()) return;
  if (getpid() != process_) {  // a forked child has the object, not the thread
    limiter_.detach();
    return;
  }
  {
    const std::lock_guard lock(mutex_);
    closing_ = true;
  }
  scan_state_changed_.notify_one();
  limiter_.join();
}

std::unique_lock<std::mutex> Database::LockToClose() {
  return getpid() == process_ ? std::unique_lock(mutex_) : std::unique_lock<std::mutex>();
}

Status Database::PrepareDirectory() {
  platform::FileError error;
  return platform::PreparePrivateDirectory(directory_, error) ? kOk : Fail(error);
}

void Database::Disconnect() {
  EndScans();
  known_tables_.clear();
  connection_.reset();
  ++generation_;
}

Status Database::Connect() {
  Disconnect();
  return alertstore::Connection::Open(file_, connection_);
}

Status Database::Reading() {
  if (connection_ != nullptr && !connection_->IsSnapshot()) return kOk;
  if (read_of_nothing_) return kNotFound;
  if (connection_ != nullptr && connection_->IsCurrent()) return kOk;
  struct stat ignored {};
  return lstat(file_.c_str(), &ignored) != 0 && errno == ENOENT ? kNotFound : Connect();
}

Status Database::CheckFile() {
  if (connection_ == nullptr || connection_->IsSnapshot() || connection_->IsCurrent()) return kOk;
  return Fail(kCorrupt,
              file_ +
                  " was replaced or removed while it was in use: close all consoles, then put a backup in "
                  "its place (\"alertctl restore FILE\")");
}

Status Database::PrepareToWrite(const StoreSchema& schema) {
  if (const Status status = CheckFile(); status != kOk) return status;
  if (connection_ == nullptr || writable_generation_ != generation_)
    if (const Status status = ConnectForWriting(); status != kOk) return status;
  return CreateMissing(schema);
}

Status Database::ConnectForWriting() {
  if (const Status status = PrepareDirectory(); status != kOk) return status;
  platform::FileError error;
  if (!platform::MakePrivateFile(file_, error)) return Fail(error);
  if (connection_ == nullptr || connection_->IsSnapshot())
    if (const Status status = Connect(); status != kOk) return status;
  return connection_->ConfigureForWriting();
}

Status Database::CreateMissing(const StoreSchema& schema) {
  if (writable_generation_ != generation_) {
    int version = 0;
    if (const Status status = ReadLayoutVersion(Connection(), version); status != kOk) return status;
    const Status status =
        version >= kLayoutVersion ? kOk : Transaction([this] { return CreateLayout(Connection()); });
    if (status != kOk) return status;
    writable_generation_ = generation_;
  }
  if (known_tables_.contains(schema.file)) return kOk;
  bool found = false;
  Status status = FindTable(Connection(), schema, found);
  if (status == kOk && !found) status = Transaction([&] { return CreateTable(Connection(), schema); });
  if (status == kOk) known_tables_.insert(schema.file);
  return status;
}

Status Database::Write(const StoreSchema& schema, const std::function<Status()>& body) {
  if (inside_read_) return kInsideRead;
  // A write cannot follow on a read transaction that began before the last write of another process.
  EndScans();
  const Status status = PrepareToWrite(schema);
  return status == kOk ? Transaction(body) : status;
}

Status Database::Transaction(const std::function<Status()>& body) {
  if (const Status status = begin_write_.Start(Connection()); status != kOk) return status;
  if (const Status status = begin_write_.Execute(); status != kOk) return status;
  Status status = Guarded(body);
  if (status == kOk) status = commit_.Start(Connection());
  if (status == kOk) status = commit_.Execute();
  // Some failures have undone the transaction already.
  if (status != kOk && sqlite3_get_autocommit(Connection()) == 0) {
    const Problem cause = LastProblem();
    RunSql(Connection(), "ROLLBACK");
    Fail(cause.status, cause.text);
  }
  return status;
}

Status Database::BeginRead() {
  if (const Status status = CheckFile(); status != kOk) return status;
  EndScans();
  const Status reading = Reading();
  if (reading != kOk && reading != kNotFound) return reading;
  if (reading == kOk)
    if (const Status status = BeginSnapshot(); status != kOk) return status;
  read_of_nothing_ = reading == kNotFound;
  inside_read_ = true;
  return kOk;
}

// The moment that is seen is that of the first read, so there is one now.
Status Database::BeginSnapshot() {
  if (const Status status = RunSql(Connection(), "BEGIN"); status != kOk) return status;
  const Status status = RunSql(Connection(), "SELECT count(*) FROM sqlite_schema");
  if (status != kOk) RunSql(Connection(), "ROLLBACK");
  return status;
}

void Database::EndRead() {
  EndScans();
  if (!read_of_nothing_) RunSql(Connection(), "COMMIT");
  inside_read_ = read_of_nothing_ = false;
}

bool Database::KeepScanRunning() {
  if (scan_running_) return true;
  if (!limiter_.joinable()) {
    const SignalsBlocked blocked;
    try {
      limiter_ = std::thread([this] { LimitScans(); });
    } catch (const std::system_error&) {
      return false;
    }
  }
  scan_running_ = true;
  scan_limit_ = Clock::now() + kScanTime;
  scan_state_changed_.notify_one();
  return true;
}

void Database::EndScans() {
  scan_running_ = false;
  if (connection_ == nullptr) return;
  for (sqlite3_stmt* statement = nullptr;
       (statement = sqlite3_next_stmt(Connection(), statement)) != nullptr;)
    if (sqlite3_stmt_busy(statement)) sqlite3_reset(statement);
}

// The limiter thread: whoever begins a scan and stops half-way does nothing more that could end it.
void Database::LimitScans() {
  std::unique_lock lock(mutex_);
  while (!closing_) {
    if (!scan_running_) {
      scan_state_changed_.wait(lock);
    } else if (Clock::now() >= scan_limit_) {
      EndScans();
    } else {
      scan_state_changed_.wait_until(lock, scan_limit_);
    }
  }
}

}  // namespace alertstore
