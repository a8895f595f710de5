// SPDX-License-Identifier: MIT
#include "platform/base/private_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "platform/base/paths.h"

namespace platform {
namespace {

bool Refuse(FileError& error, std::string text) {
  error = {0, std::move(text)};
  return false;
}

bool Fail(FileError& error, const std::string& doing, const std::string& path) {
  error = SystemError(doing, path);
  return false;
}

bool IsAdministrator() { return geteuid() == 0; }

// The account that a new file at `path` belongs to.
bool OwnerOfDirectory(const std::string& path, struct stat& directory) {
  return stat(ParentOf(path).c_str(), &directory) == 0;
}

bool CheckDirectory(const std::string& path, const struct stat& found, FileError& error) {
  if (!S_ISDIR(found.st_mode)) {
    errno = ENOTDIR;
    return Fail(error, "use", path);
  }
  if (found.st_uid != geteuid() && found.st_uid != 0 && !IsAdministrator())
    return Refuse(error, path + " belongs to another account: use a directory of your own");
  if ((found.st_mode & (S_IWGRP | S_IWOTH)) != 0)
    return Refuse(error, "other accounts can write to " + path + ": take that from them (chmod go-w " + path +
                             ") after a look at what they left there");
  return true;
}

bool CheckFile(const std::string& path, const struct stat& found, FileError& error) {
  struct stat directory {};
  if (S_ISLNK(found.st_mode)) return Refuse(error, path + " is a symbolic link: remove it");
  if (S_ISDIR(found.st_mode)) {
    errno = EISDIR;
    return Fail(error, "use", path);
  }
  if (!S_ISREG(found.st_mode)) return Refuse(error, path + " is no file: remove it");
  if (found.st_nlink > 1) return Refuse(error, path + " has more than one name (hard links): make it a copy");
  if (!OwnerOfDirectory(path, directory)) return Fail(error, "look at", ParentOf(path));
  if (found.st_uid != directory.st_uid)
    return Refuse(error,
                  path +
                      " belongs to another account than its directory: give it to the directory's owner "
                      "(chown)");
  return true;
}

}  // namespace

FileError SystemError(const std::string& doing, const std::string& path) {
  const int number = errno;
  return {number, "cannot " + doing + ' ' + path + ": " + std::strerror(number)};
}

bool CheckPrivateDirectory(const std::string& path, FileError& error) {
  struct stat found {};
  if (stat(path.c_str(), &found) != 0) return Fail(error, "use", path);
  return CheckDirectory(path, found, error);
}

bool PreparePrivateDirectory(const std::string& path, FileError& error) {
  if (!MakeDirectories(path)) return Fail(error, "make the directory", path);
  return CheckPrivateDirectory(path, error);
}

bool CouldPreparePrivateDirectory(const std::string& path, FileError& error) {
  struct stat found {};
  if (stat(path.c_str(), &found) == 0) return CheckDirectory(path, found, error);
  if (errno != ENOENT) return Fail(error, "use", path);
  std::string above = ParentOf(path);
  while (stat(above.c_str(), &found) != 0 && errno == ENOENT && above != ParentOf(above))
    above = ParentOf(above);
  return access(above.c_str(), W_OK | X_OK) == 0 || Fail(error, "make the directory " + path + " in", above);
}

bool CheckPrivateFile(const std::string& path, FileError& error) {
  struct stat found {};
  if (lstat(path.c_str(), &found) == 0) return CheckFile(path, found, error);
  return errno == ENOENT || Fail(error, "use", path);
}

bool MakePrivateFile(const std::string& path, FileError& error) {
  if (mknod(path.c_str(), S_IFREG | 0600, 0) != 0)
    return errno == EEXIST ? CheckPrivateFile(path, error) : Fail(error, "make", path);
  struct stat directory {};
  if (IsAdministrator() && OwnerOfDirectory(path, directory))
    if (lchown(path.c_str(), directory.st_uid, directory.st_gid) != 0) return Fail(error, "give away", path);
  return true;
}

Descriptor OpenPrivateFile(const std::string& path, FileError& error) {
  return MakePrivateFile(path, error) ? OpenExistingPrivateFile(path, error) : Descriptor();
}

Descriptor OpenExistingPrivateFile(const std::string& path, FileError& error) {
  if (!CheckPrivateFile(path, error)) return Descriptor();
  Descriptor file(open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat found {};
  if (!file.IsOpen() || fstat(file.Get(), &found) != 0) {
    Fail(error, "open", path);
    return Descriptor();
  }
  return CheckFile(path, found, error) ? std::move(file) : Descriptor();
}

bool GiveToDirectoryOwner(int file, const std::string& path) {
  struct stat directory {};
  if (!IsAdministrator()) return true;
  return OwnerOfDirectory(path, directory) && fchown(file, directory.st_uid, directory.st_gid) == 0;
}

bool IsFileAt(const std::string& path, int file) {
  struct stat named {};
  struct stat opened {};
  return lstat(path.c_str(), &named) == 0 && fstat(file, &opened) == 0 && named.st_dev == opened.st_dev &&
         named.st_ino == opened.st_ino;
}

std::string ParentOf(const std::string& path) {
  const std::string parent = std::filesystem::path(path).parent_path();
  return parent.empty() ? "." : parent;
}

bool FlushDirectory(const std::string& path) {
  const Descriptor directory(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return directory.IsOpen() && (fsync(directory.Get()) == 0 || errno == EINVAL);
}

}  // namespace platform
