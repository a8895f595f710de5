// SPDX-License-Identifier: MIT
#include "companions/alertstore/backup_file.h"

#include <sys/stat.h>

#include <cerrno>
#include <filesystem>

#include "companions/alertstore/problem.h"
#include "companions/alertstore/schemas.h"
#include "companions/alertstore/sqlite_connection.h"
#include "companions/alertstore/sqlite_layout.h"
#include "companions/alertstore/sqlite_statement.h"
#include "platform/base/paths.h"
#include "platform/base/private_file.h"

namespace alertstore {
namespace {

Status OpenHandle(const std::string& name, int flags, Handle& handle) {
  sqlite3* connection = nullptr;
  const int result = sqlite3_open_v2(name.c_str(), &connection, flags | SQLITE_OPEN_NOMUTEX, nullptr);
  handle.reset(connection);
  return StatusOfResult(result, connection);
}

// SQLite gives a meaning of its own to names such as ":memory:" and "file:...", which whole paths do not have.
std::string Whole(const std::string& file) { return std::filesystem::absolute(file); }

Status CheckIsFile(const std::string& file) {
  struct stat found {};
  if (stat(file.c_str(), &found) != 0) {
    const platform::FileError error = platform::SystemError("read", file);
    return error.number == ENOENT ? Fail(kNotFound, error.text) : Fail(error);
  }
  return S_ISREG(found.st_mode) ? kOk : Fail(kInvalidArgument, file + " is no file");
}

Status CountRecords(sqlite3* connection, std::size_t& records) {
  records = 0;
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

}  // namespace

std::string RealDataDirectory() {
  std::error_code error;
  const std::string directory = platform::DataDirectory();
  const std::filesystem::path path = std::filesystem::weakly_canonical(directory, error);
  return error ? directory : path.string();
}

bool NameIsTaken(const std::string& path) {
  struct stat ignored {};
  return lstat(path.c_str(), &ignored) == 0;
}

Status OpenForWriting(const std::string& file, Handle& handle) {
  return OpenHandle(Whole(file), SQLITE_OPEN_READWRITE, handle);
}

// A copy by hand of a database in use leaves what stands in the journal behind.
Status OpenBackup(const std::string& file, Handle& copy) {
  if (const Status status = CheckIsFile(file); status != kOk) return status;
  for (const char* suffix : {"-wal", "-journal"})
    if (const std::string journal = file + suffix; NameIsTaken(journal))
      return Fail(kCorrupt, file + " has a journal beside it (" + journal +
                                "): it is a copy of a database in use, which may not be whole");
  return OpenHandle(SnapshotUri(Whole(file)), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, copy);
}

// The whole check: the quick one does not see an index that finds other records than there are.
Status CheckBackup(sqlite3* copy, const std::string& file, std::size_t& records) {
  std::string checked, page_size;
  int version = 0;
  bool found = false;
  if (Ask(copy, "PRAGMA integrity_check(1)", checked) != kOk || checked != "ok")
    return Fail(kCorrupt, file + " is damaged or no backup");
  if (const Status status = FindTable(copy, SchemaOf<ALRTNTFYSERV>(), found); status != kOk) return status;
  if (!found) return Fail(kCorrupt, file + " is no backup of these stores");
  if (const Status status = ReadLayoutVersion(copy, version); status != kOk) return status;
  if (version > kLayoutVersion) return Fail(kCorrupt, file + " was made by a newer version of this program");
  if (const Status status = Ask(copy, "PRAGMA page_size", page_size); status != kOk) return status;
  if (page_size != std::to_string(kPageSize))
    return Fail(kCorrupt, file + " was rewritten by another program, with pages of another size");
  return CountRecords(copy, records);
}

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

}  // namespace alertstore
