// SPDX-License-Identifier: MIT
#include "companions/alertstore/backup.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <vector>

#include "companions/alertstore/file_lock.h"
#include "companions/alertstore/guarded.h"
#include "companions/alertstore/problem.h"
#include "companions/alertstore/schemas.h"
#include "companions/alertstore/sqlite_connection.h"
#include "companions/alertstore/sqlite_layout.h"
#include "companions/alertstore/sqlite_statement.h"
#include "platform/base/paths.h"
#include "platform/base/private_file.h"

namespace alertstore {
namespace {

struct Closer {
  void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};
using Handle = std::unique_ptr<sqlite3, Closer>;

// What every database of this format begins with (SQLite database file format, 1.2).
constexpr char kMagic[] = "SQLite format 3";

std::string Directory() {
  std::error_code error;
  const std::string directory = platform::DataDirectory();
  const std::filesystem::path path = std::filesystem::weakly_canonical(directory, error);
  return error ? directory : path.string();
}

bool Exists(const std::string& path) {
  struct stat ignored {};
  return lstat(path.c_str(), &ignored) == 0;
}

Status OpenFile(const std::string& file, int flags, Handle& handle) {
  sqlite3* connection = nullptr;
  const int result = sqlite3_open_v2(file.c_str(), &connection, flags | SQLITE_OPEN_NOMUTEX, nullptr);
  handle.reset(connection);
  return StatusOfResult(result, connection);
}

/// The one text or number that a statement gives.
Status Ask(sqlite3* connection, const std::string& sql, std::string& answer) {
  Statement statement{sql};
  if (const Status status = statement.Start(connection); status != kOk) return status;
  const ResetAtExit reset(statement);
  const int result = statement.Step();
  if (result == SQLITE_ROW) answer = statement.Bytes(0);
  return statement.StatusOf(result);
}

Status CopyPages(sqlite3* to, sqlite3* from) {
  sqlite3_backup* backup = sqlite3_backup_init(to, "main", from, "main");
  if (backup == nullptr) return StatusOfResult(sqlite3_errcode(to), to);
  sqlite3_backup_step(backup, -1);
  return StatusOfResult(sqlite3_backup_finish(backup), to);
}

Status CountRecords(sqlite3* connection, std::size_t& records) {
  for (const StoreSchema& schema : SiteSchemas()) {
    bool found = false;
    std::string count = "0";
    Status status = FindTable(connection, schema, found);
    if (status == kOk && found) status = Ask(connection, "SELECT count(*) FROM " + TableName(schema), count);
    if (status != kOk) return status;
    records += std::stoul(count);
  }
  return kOk;
}

// Writing a copy over somebody's letter is not what a mistyped name should do.
Status CheckTarget(const std::string& file) {
  if (!Exists(file)) return kOk;
  std::string start(std::strlen(kMagic), '\0');
  std::ifstream(file).read(start.data(), static_cast<std::streamsize>(start.size()));
  if (start == kMagic) return kOk;
  return Fail(kInvalidArgument, file + " is there and is no backup: choose another name");
}

Status MakeEmpty(const std::string& file) {
  if (unlink(file.c_str()) != 0 && errno != ENOENT) return Fail(platform::SystemError("replace", file));
  const platform::Descriptor made(
      open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
  if (!made.IsOpen() || !platform::GiveToDirectoryOwner(made.Get(), file))
    return Fail(platform::SystemError("make", file));
  return kOk;
}

// The copy says of itself that it has a journal, as the database has; without one it is a single file.
Status WriteCopy(sqlite3* from, const std::string& file, Copied& copied) {
  Handle to;
  std::string mode;
  if (const Status status = OpenFile(file, SQLITE_OPEN_READWRITE, to); status != kOk) return status;
  if (const Status status = CopyPages(to.get(), from); status != kOk) return status;
  if (const Status status = Ask(to.get(), "PRAGMA journal_mode=DELETE", mode); status != kOk) return status;
  return CountRecords(to.get(), copied.records);
}

Status PutInPlace(const std::string& temporary, const std::string& file) {
  if (std::rename(temporary.c_str(), file.c_str()) != 0) return Fail(platform::SystemError("replace", file));
  if (!platform::FlushDirectory(platform::ParentOf(file)))
    return Fail(platform::SystemError("flush the directory of", file));
  return kOk;
}

// A copy of a database in use leaves what stands in the journal behind.
Status OpenCopy(const std::string& file, Handle& copy) {
  struct stat found {};
  if (stat(file.c_str(), &found) != 0) {
    const Status status = Fail(platform::SystemError("read", file));
    return errno == ENOENT ? Fail(kNotFound, LastProblem().text) : status;
  }
  if (!S_ISREG(found.st_mode)) return Fail(kInvalidArgument, file + " is no file");
  if (Exists(file + "-wal"))
    return Fail(kCorrupt, file + " has a journal beside it (" + file +
                              "-wal): it is a copy of a database in use, "
                              "which may not be whole");
  return OpenFile(file, SQLITE_OPEN_READONLY, copy);
}

Status CheckCopy(sqlite3* copy, const std::string& file, Copied& copied) {
  std::string checked;
  int version = 0;
  bool found = false;
  if (Ask(copy, "PRAGMA quick_check", checked) != kOk || checked != "ok")
    return Fail(kCorrupt, file + " is damaged or no backup");
  if (const Status status = FindTable(copy, SchemaOf<ALRTNTFYSERV>(), found); status != kOk) return status;
  if (!found) return Fail(kCorrupt, file + " is no backup of these stores");
  if (const Status status = ReadLayoutVersion(copy, version); status != kOk) return status;
  if (version > kLayoutVersion) return Fail(kCorrupt, file + " was made by a newer version of this program");
  return CountRecords(copy, copied.records);
}

// A name that nothing bears yet.
std::string NameAside(const std::string& file) {
  std::string name = file + ".damaged";
  for (int count = 2; Exists(name); ++count) name = file + ".damaged-" + std::to_string(count);
  return name;
}

// The file itself stays where it is: consoles have it open, and its locks are theirs, too.
Status SetAside(const std::string& file, Copied& copied) {
  std::error_code error;
  copied.set_aside = NameAside(file);
  if (!std::filesystem::copy_file(file, copied.set_aside, error))
    return Fail(StatusOfErrorNumber(error.value()), "cannot copy " + file + ": " + error.message());
  Handle damaged;
  if (const Status status = OpenFile(file, SQLITE_OPEN_READWRITE, damaged); status != kOk) return status;
  sqlite3_db_config(damaged.get(), SQLITE_DBCONFIG_RESET_DATABASE, 1, nullptr);
  Status status = RunSql(damaged.get(), kPageSizePragma);
  if (status == kOk) status = RunSql(damaged.get(), "VACUUM");
  sqlite3_db_config(damaged.get(), SQLITE_DBCONFIG_RESET_DATABASE, 0, nullptr);
  return status;
}

Status OpenDatabase(const std::string& file, std::unique_ptr<Connection>& database) {
  platform::FileError error;
  if (!platform::MakePrivateFile(file, error)) return Fail(error);
  const Status status = Connection::Open(file, database);
  return status == kOk ? database->ConfigureForWriting() : status;
}

// The lock of every store: no console is between its look at a record and its write.
Status LockAll(const std::string& directory, std::vector<std::unique_ptr<FileLock>>& locks) {
  for (const StoreSchema& schema : SiteSchemas()) {
    locks.push_back(std::make_unique<FileLock>(directory + "/alerting.lock", schema.file));
    if (const Status status = locks.back()->Acquire(); status != kOk) return status;
  }
  return kOk;
}

Status CompleteLayout(sqlite3* connection) {
  if (const Status status = RunSql(connection, "BEGIN IMMEDIATE"); status != kOk) return status;
  if (const Status status = CreateLayout(connection); status != kOk) return status;
  return RunSql(connection, "COMMIT");
}

Status PutBack(sqlite3* copy, const std::string& directory, Copied& copied) {
  const std::string file = directory + "/alerting.db";
  std::vector<std::unique_ptr<FileLock>> locks;
  std::unique_ptr<Connection> database;
  if (const Status status = LockAll(directory, locks); status != kOk) return status;
  Status status = OpenDatabase(file, database);
  if (status == kCorrupt) {
    status = SetAside(file, copied);
    if (status == kOk) status = OpenDatabase(file, database);
  }
  if (status != kOk) return status;
  status = CopyPages(database->Get(), copy);
  return status == kOk ? CompleteLayout(database->Get()) : status;
}

}  // namespace

Status BackUp(const std::string& file, Copied& copied) {
  return Guarded([&] {
    const std::string source = Directory() + "/alerting.db", temporary = file + ".tmp";
    std::unique_ptr<Connection> database;
    if (!Exists(source)) return Fail(kNotFound, "there is no " + source);
    if (const Status status = CheckTarget(file); status != kOk) return status;
    if (const Status status = Connection::Open(source, database); status != kOk) return status;
    if (const Status status = MakeEmpty(temporary); status != kOk) return status;
    Status status = WriteCopy(database->Get(), temporary, copied);
    if (status == kOk) status = PutInPlace(temporary, file);
    if (status != kOk) unlink(temporary.c_str());
    return status;
  });
}

Status Restore(const std::string& file, Copied& copied) {
  return Guarded([&] {
    const std::string directory = Directory();
    platform::FileError error;
    Handle copy;
    if (const Status status = OpenCopy(file, copy); status != kOk) return status;
    if (const Status status = CheckCopy(copy.get(), file, copied); status != kOk) return status;
    if (!platform::PreparePrivateDirectory(directory, error)) return Fail(error);
    return PutBack(copy.get(), directory, copied);
  });
}

}  // namespace alertstore
