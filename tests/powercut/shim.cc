// SPDX-License-Identifier: MIT
// The calls by which the stores, SQLite and the configuration file reach the disk. As the program itself defines
// them, the libraries that it loads call these. A call that is missing here would show: what it wrote would
// not be on the disk after a cut.
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdarg>
#include <memory>

#include "tests/powercut/disk.h"

namespace {

std::unique_ptr<powercut::Disk> disk;  // none until something is to be followed

bool Follows(int fd) { return disk != nullptr && disk->Follows(fd); }

}  // namespace

void powercut::Follow(const Plan& plan) { disk = std::make_unique<Disk>(plan); }

extern "C" {

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const auto mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  const int fd = static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
  if (fd >= 0 && disk != nullptr) disk->Open(fd, path);
  return fd;
}

int close(int fd) {
  if (disk != nullptr) disk->Close(fd);
  return static_cast<int>(syscall(SYS_close, fd));
}

ssize_t pwrite64(int fd, const void* bytes, size_t size, off_t offset) {
  const ssize_t count = syscall(SYS_pwrite64, fd, bytes, size, offset);
  if (count > 0 && Follows(fd))
    disk->Write(fd, static_cast<size_t>(offset),
                {static_cast<const char*>(bytes), static_cast<size_t>(count)});
  return count;
}

ssize_t write(int fd, const void* bytes, size_t size) {
  if (!Follows(fd)) return syscall(SYS_write, fd, bytes, size);
  const ssize_t count = pwrite64(fd, bytes, size, lseek(fd, 0, SEEK_CUR));
  if (count > 0) lseek(fd, count, SEEK_CUR);
  return count;
}

int ftruncate(int fd, off_t size) noexcept {
  const int result = static_cast<int>(syscall(SYS_ftruncate, fd, size));
  if (result == 0 && Follows(fd)) disk->Truncate(fd, static_cast<size_t>(size));
  return result;
}

// Nothing here has to outlive the machine, so no sync takes its time.
int fsync(int fd) {
  if (Follows(fd)) disk->Sync(fd);
  return 0;
}

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

// The same calls under other names.
int open64(const char*, int, ...) __attribute__((alias("open")));
ssize_t pwrite(int, const void*, size_t, off_t) __attribute__((alias("pwrite64")));
int ftruncate64(int, off_t) noexcept __attribute__((alias("ftruncate")));
int fdatasync(int) __attribute__((alias("fsync")));

}  // extern "C"
