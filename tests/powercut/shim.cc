// SPDX-License-Identifier: MIT
// The calls by which the stores, SQLite and the configuration file reach the disk. As the program itself defines
// them, the libraries that it loads call these. A call that is missing here would show: what it wrote would
// not be on the disk after a cut.
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>
#include <memory>

#include "tests/powercut/disk.h"

namespace {

std::unique_ptr<powercut::Disk> disk;  // none until something is to be followed

bool Follows(int fd) { return disk != nullptr && disk->Follows(fd); }

int Open(const char* path, int flags, mode_t mode) {
  const int fd = static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
  if (fd >= 0 && disk != nullptr) disk->Open(fd, path, (flags & O_TRUNC) != 0);
  return fd;
}

ssize_t WriteAt(int fd, const void* bytes, size_t size, off_t offset) {
  const ssize_t count = syscall(SYS_pwrite64, fd, bytes, size, offset);
  if (count > 0 && Follows(fd))
    disk->Write(fd, static_cast<size_t>(offset),
                {static_cast<const char*>(bytes), static_cast<size_t>(count)});
  return count;
}

int Truncate(int fd, off_t size) {
  const int result = static_cast<int>(syscall(SYS_ftruncate, fd, size));
  if (result == 0 && Follows(fd)) disk->Truncate(fd, static_cast<size_t>(size));
  return result;
}

// Nothing here has to outlive the machine, so no sync takes its time.
int Sync(int fd) {
  if (Follows(fd)) disk->Sync(fd);
  return 0;
}

}  // namespace

void powercut::Follow(Plan plan) { disk = std::make_unique<Disk>(std::move(plan)); }

extern "C" {

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const auto mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  return Open(path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const auto mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  return Open(path, flags, mode);
}

ssize_t write(int fd, const void* bytes, size_t size) {
  if (!Follows(fd)) return syscall(SYS_write, fd, bytes, size);
  const off_t offset = lseek(fd, 0, SEEK_CUR);
  const ssize_t count = WriteAt(fd, bytes, size, offset);
  if (count > 0) lseek(fd, offset + count, SEEK_SET);
  return count;
}

ssize_t pwrite(int fd, const void* bytes, size_t size, off_t offset) {
  return WriteAt(fd, bytes, size, offset);
}
ssize_t pwrite64(int fd, const void* bytes, size_t size, off_t offset) {
  return WriteAt(fd, bytes, size, offset);
}

int ftruncate(int fd, off_t size) noexcept { return Truncate(fd, size); }
int ftruncate64(int fd, off_t size) noexcept { return Truncate(fd, size); }

int fsync(int fd) { return Sync(fd); }
int fdatasync(int fd) { return Sync(fd); }

int rename(const char* from, const char* to) noexcept {
  const int result = static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
  if (result == 0 && disk != nullptr) disk->Rename(from, to);
  return result;
}

int unlink(const char* path) noexcept {
  const int result = static_cast<int>(syscall(SYS_unlinkat, AT_FDCWD, path, 0));
  if (result == 0 && disk != nullptr) disk->Remove(path);
  return result;
}

int close(int fd) {
  if (disk != nullptr) disk->Close(fd);
  return static_cast<int>(syscall(SYS_close, fd));
}

}  // extern "C"
