// SPDX-License-Identifier: MIT
#include "companions/alertstore/sqlite_database.h"

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "companions/alertstore/guarded.h"
#include "platform/base/paths.h"

namespace alertstore {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kBusyLimit = std::chrono::seconds(5);
constexpr auto kScanTime = std::chrono::milliseconds(20);
constexpr useconds_t kPollMicroseconds = 100;

std::string IndexName(const StoreSchema& schema, const Selector& selector) {
  return '"' + schema.file + '.' + std::to_string(selector.number) + '"';
}

bool IsUnique(const Selector& selector) {
  return selector.kind == KeyKind::kIdentity || selector.kind == KeyKind::kUniqueText;
}

// An empty file that only this user can read; the database's other files get its mode. Made without opening
// it: closing a descriptor of the database drops the locks that SQLite holds on it.
void MakePrivateFile(const std::string& path) { static_cast<void>(mknod(path.c_str(), S_IFREG | 0600, 0)); }

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

std::string TableName(const StoreSchema& schema) { return '"' + schema.file + '"'; }

std::string KeyExpression(const Selector& selector) {
  const std::string start = std::to_string(selector.offset + 1);
  const std::string field = "substr(record," + start + ',' + std::to_string(selector.width) + ')';
  if (selector.kind == KeyKind::kIdentity || selector.kind == KeyKind::kGuid) return field;
  // The text alone, so that what stands behind its terminator makes no difference.
  return "substr(record," + start + ",ifnull(nullif(instr(" + field + ",x'00'),0)," +
         std::to_string(selector.width + 1) + ")-1)";
}

Status Database::Open(const std::string& directory, std::shared_ptr<Database>& database) {
  if (!platform::MakeDirectories(directory)) return kIoError;
  std::shared_ptr<Database> opened(new Database(directory));
  const std::lock_guard lock(opened->mutex_);
  if (const Status status = opened->Connect(); status != kOk) return status;
  if (const Status status = opened->Configure(); status != kOk) return status;
  database = std::move(opened);
  return kOk;
}

Database::Database(const std::string& directory)
    : file_(directory + "/alerting.db"), lock_file_(directory + "/alerting.lock"), process_(getpid()) {}

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

Status Database::Connect() {
  MakePrivateFile(file_);
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
  sqlite3* connection = nullptr;
  const int result = sqlite3_open_v2(file_.c_str(), &connection, flags, nullptr);
  connection_.reset(connection);  // a failed open may leave one to be closed
  if (result != SQLITE_OK) return StatusOfResult(result);
  return StatusOfResult(sqlite3_busy_handler(connection, WaitWhileBusy, this));
}

// SQLite's own waits grow to 100 milliseconds a step, so that one of two busy consoles hardly ever gets its
// turn.
int Database::WaitWhileBusy(void* database, int count) {
  auto* self = static_cast<Database*>(database);
  if (count == 0) self->busy_since_ = Clock::now();
  if (Clock::now() - self->busy_since_ >= kBusyLimit) return 0;
  usleep(kPollMicroseconds);
  return 1;
}

// Every change is durable when it is acknowledged. The page size, which keeps a whole record in one page,
// counts only before there is a journal. Two processes that make the database at once get in each other's way
// without SQLite calling the busy handler, hence the loop.
Status Database::Configure() {
  for (const char* pragma : {"PRAGMA page_size=8192", "PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL",
                             "PRAGMA mmap_size=1073741824"}) {
    Status status = Run(pragma);
    for (int count = 0; status == kLockTimeout && WaitWhileBusy(this, count) != 0; ++count)
      status = Run(pragma);
    if (status != kOk) return status;
  }
  return kOk;
}

Status Database::Run(const std::string& sql) {
  Statement statement{sql};
  if (const Status status = statement.Start(Connection()); status != kOk) return status;
  return statement.Execute();
}

Status Database::HasTable(const StoreSchema& schema, bool& found) {
  Statement find{"SELECT 1 FROM sqlite_schema WHERE type='table' AND name='" + schema.file +
                 "' COLLATE NOCASE"};
  if (const Status status = find.Start(Connection()); status != kOk) return status;
  const ResetAtExit reset(find);
  const int result = find.Step();
  found = result == SQLITE_ROW;
  return StatusOfResult(result);
}

Status Database::EnsureTable(const StoreSchema& schema) {
  bool found = false;
  if (const Status status = HasTable(schema, found); status != kOk || found) return status;
  return Write([&] { return CreateTable(schema); });
}

// Another process may have made the table since it was looked for.
Status Database::CreateTable(const StoreSchema& schema) {
  const std::string table = TableName(schema);
  Status status =
      Run("CREATE TABLE IF NOT EXISTS " + table + "(id INTEGER PRIMARY KEY, record BLOB NOT NULL)");
  for (const Selector& selector : schema.selectors) {
    if (status != kOk) return status;
    status = Run((IsUnique(selector) ? "CREATE UNIQUE INDEX IF NOT EXISTS " : "CREATE INDEX IF NOT EXISTS ") +
                 IndexName(schema, selector) + " ON " + table + '(' + KeyExpression(selector) + ')');
  }
  return status;
}

Status Database::Write(const std::function<Status()>& body) {
  if (inside_read_) return kInsideRead;
  // A write cannot follow on a read transaction that began before the last write of another process.
  EndScans();
  if (const Status status = begin_write_.Start(Connection()); status != kOk) return status;
  if (const Status status = begin_write_.Execute(); status != kOk) return status;
  Status status = Guarded(body);
  if (status == kOk) status = commit_.Start(Connection());
  if (status == kOk) status = commit_.Execute();
  // Some failures have undone the transaction already.
  if (status != kOk && sqlite3_get_autocommit(Connection()) == 0) Run("ROLLBACK");
  return status;
}

Status Database::BeginRead() {
  EndScans();
  if (const Status status = Run("BEGIN"); status != kOk) return status;
  // The moment that is seen is that of the first read, so there is one now.
  if (const Status status = Run("SELECT count(*) FROM sqlite_schema"); status != kOk) {
    Run("ROLLBACK");
    return status;
  }
  inside_read_ = true;
  return kOk;
}

void Database::EndRead() {
  EndScans();
  Run("COMMIT");
  inside_read_ = false;
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
  for (sqlite3_stmt* statement = nullptr;
       (statement = sqlite3_next_stmt(Connection(), statement)) != nullptr;)
    if (sqlite3_stmt_busy(statement)) sqlite3_reset(statement);
  scan_running_ = false;
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
