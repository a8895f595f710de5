// SPDX-License-Identifier: MIT
#include "companions/alertstore/backup.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>

#include "companions/alertstore/backup_file.h"
#include "companions/alertstore/guarded.h"
#include "companions/alertstore/problem.h"
#include "companions/alertstore/sqlite_connection.h"
#include "platform/base/private_file.h"
#include "platform/base/process_lock.h"

namespace alertstore {
namespace {

// What every database of this format begins with (SQLite database file format, 1.2).
constexpr char kMagic[] = "SQLite format 3";

// Writing a copy over somebody's letter, or over the database itself, is not what a mistyped name should do.
Status CheckTarget(const std::string& file, const std::string& source) {
  struct stat there {};
  struct stat database {};
  if (stat(file.c_str(), &there) != 0) return kOk;
  if (stat(source.c_str(), &database) == 0 && there.st_dev == database.st_dev &&
      there.st_ino == database.st_ino)
    return Fail(kInvalidArgument, file + " is the database itself: choose another name");
  std::string start(std::strlen(kMagic), '\0');
  if (S_ISREG(there.st_mode))
    std::ifstream(file).read(start.data(), static_cast<std::streamsize>(start.size()));
  if (start == kMagic) return kOk;
  return Fail(kInvalidArgument, file + " is there and is no backup: choose another name");
}

// Two backups of one name would write into each other's file. A file system without this kind of lock goes without.
Status TakeTurn(const std::string& file, platform::Descriptor& directory) {
  directory =
      platform::Descriptor(open(platform::ParentOf(file).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!directory.IsOpen()) return Fail(platform::SystemError("open", platform::ParentOf(file)));
  if (platform::LockOpenFile(directory.Get(), std::chrono::seconds(5)) != platform::LockOutcome::kTimeout)
    return kOk;
  return Fail(kLockTimeout, "another program keeps " + platform::ParentOf(file) + " locked; try again");
}

// A killed backup leaves its file, and SQLite's beside it.
Status MakeEmpty(const std::string& file) {
  for (const char* suffix : {"", "-journal", "-wal", "-shm"})
    if (unlink((file + suffix).c_str()) != 0 && errno != ENOENT)
      return Fail(platform::SystemError("replace", file + suffix));
  const platform::Descriptor made(
      open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
  if (!made.IsOpen() || !platform::GiveToDirectoryOwner(made.Get(), file))
    return Fail(platform::SystemError("make", file));
  return kOk;
}

// The copy says of itself that it has a journal, as the database has; without one it is a single file.
Status WriteCopy(sqlite3* from, const std::string& file) {
  Handle to;
  std::string mode;
  if (const Status status = OpenForWriting(file, to); status != kOk) return status;
  if (const Status status = CopyPages(to.get(), from); status != kOk) return status;
  return Ask(to.get(), "PRAGMA journal_mode=DELETE", mode);
}

// A copy of a damaged database must not take the place of the last whole one.
Status CheckCopy(const std::string& file, const std::string& source, Copied& copied) {
  Handle copy;
  if (const Status status = OpenBackup(file, copy); status != kOk) return status;
  const Status status = CheckBackup(copy.get(), "the copy of " + source, copied.records);
  return status == kCorrupt ? Fail(kCorrupt, LastProblem().text + "; an older backup is as it was") : status;
}

Status PutInPlace(const std::string& temporary, const std::string& file) {
  if (std::rename(temporary.c_str(), file.c_str()) != 0) return Fail(platform::SystemError("replace", file));
  if (!platform::FlushDirectory(platform::ParentOf(file)))
    return Fail(platform::SystemError("flush the directory of", file));
  return kOk;
}

Status CopyTo(const std::string& file, const std::string& source, Copied& copied) {
  const std::string temporary = file + ".tmp";
  std::unique_ptr<Connection> database;
  if (const Status status = Connection::Open(source, database); status != kOk) return status;
  if (const Status status = MakeEmpty(temporary); status != kOk) return status;
  Status status = WriteCopy(database->Get(), temporary);
  if (status == kOk) status = CheckCopy(temporary, source, copied);
  if (status == kOk) status = PutInPlace(temporary, file);
  if (status != kOk) unlink(temporary.c_str());
  return status;
}

}  // namespace

Status BackUp(const std::string& file, Copied& copied) {
  return Guarded([&] {
    const std::string directory = RealDataDirectory(), source = directory + "/alerting.db";
    platform::FileError error;
    platform::Descriptor turn;
    if (!NameIsTaken(source)) return Fail(kNotFound, "there is no " + source);
    if (!platform::CheckPrivateDirectory(directory, error)) return Fail(error);
    if (const Status status = CheckTarget(file, source); status != kOk) return status;
    if (const Status status = TakeTurn(file, turn); status != kOk) return status;
    return CopyTo(file, source, copied);
  });
}

}  // namespace alertstore
