// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <memory>
#include <vector>

#include "companions/alertstore/backup.h"
#include "companions/alertstore/backup_file.h"
#include "companions/alertstore/file_lock.h"
#include "companions/alertstore/guarded.h"
#include "companions/alertstore/problem.h"
#include "companions/alertstore/schemas.h"
#include "companions/alertstore/sqlite_connection.h"
#include "companions/alertstore/sqlite_layout.h"
#include "platform/base/private_file.h"

namespace alertstore {
namespace {

// A name that nothing bears yet.
std::string NameAside(const std::string& file) {
  std::string name = file + ".damaged";
  for (int count = 2; NameIsTaken(name); ++count) name = file + ".damaged-" + std::to_string(count);
  return name;
}

Status CopyAside(const std::string& file, const std::string& name) {
  std::error_code error;
  if (!std::filesystem::copy_file(file, name, error)) {
    unlink(name.c_str());  // what there was room for
    return Fail(StatusOfErrorNumber(error.value()), "cannot copy " + file + ": " + error.message());
  }
  const platform::Descriptor copy(open(name.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
  if (copy.IsOpen() && platform::GiveToDirectoryOwner(copy.Get(), name) && fsync(copy.Get()) == 0) return kOk;
  return Fail(platform::SystemError("keep", name));
}

// The file itself stays where it is: consoles have it open, and its locks are theirs, too.
Status SetAside(const std::string& file, Copied& copied) {
  const std::string name = NameAside(file);
  if (const Status status = CopyAside(file, name); status != kOk) return status;
  copied.set_aside = name;
  Handle damaged;
  if (const Status status = OpenForWriting(file, damaged); status != kOk) return status;
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

Status Restore(const std::string& file, Copied& copied) {
  return Guarded([&] {
    const std::string directory = RealDataDirectory();
    platform::FileError error;
    Handle copy;
    if (const Status status = OpenBackup(file, copy); status != kOk) return status;
    if (const Status status = CheckBackup(copy.get(), file, copied.records); status != kOk) return status;
    if (!platform::PreparePrivateDirectory(directory, error)) return Fail(error);
    return PutBack(copy.get(), directory, copied);
  });
}

}  // namespace alertstore
