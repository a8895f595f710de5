// SPDX-License-Identifier: MIT
#include "companions/alertstore/file_lock.h"

#include <fcntl.h>
#include <pthread.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <mutex>
#include <set>
#include <utility>

#include "companions/alertstore/problem.h"
#include "companions/alertstore/status_text.h"
#include "platform/base/private_file.h"

namespace alertstore {
namespace {

using Clock = std::chrono::steady_clock;

constexpr useconds_t kPollMicroseconds = 100;

std::atomic<std::chrono::milliseconds> wait_limit{std::chrono::seconds(5)};

// The descriptors that hold a lock. A child process inherits the open file description and with it the lock,
// which would outlive its holder for as long as the child runs; so the child closes its copies.
struct HeldDescriptors {
  std::mutex mutex;
  std::set<int> fds;
};

HeldDescriptors& Held() {
  static auto* held = new HeldDescriptors;  // never destroyed: a fork may come after static objects are gone
  return *held;
}

void CloseInChild() {
  for (const int fd : Held().fds) close(fd);
  Held().fds.clear();
  Held().mutex.unlock();
}

void RegisterForkHandlers() {
  static const int registered =
      pthread_atfork([] { Held().mutex.lock(); }, [] { Held().mutex.unlock(); }, CloseInChild);
  static_cast<void>(registered);
}

// Takes over an open file as one that must not be inherited; -1 for none.
int Hold(platform::Descriptor file) {
  if (file.IsOpen()) Held().fds.insert(file.Get());
  return file.Release();
}

void CloseHeld(int& fd) {
  const std::lock_guard guard(Held().mutex);
  const int closed = std::exchange(fd, -1);
  if (Held().fds.erase(closed) == 1) close(closed);  // in a forked child it is closed already
}

int SetLock(int fd, long byte, short type) {
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  lock.l_start = byte;
  lock.l_len = 1;
  return fcntl(fd, F_OFD_SETLK, &lock);
}

Status LockTimeout() { return Fail(kLockTimeout, StatusText(kLockTimeout)); }

Status WaitForByte(int fd, long byte, Clock::time_point deadline) {
  while (SetLock(fd, byte, F_WRLCK) != 0) {
    if (errno != EAGAIN && errno != EACCES && errno != EINTR)
      return Fail(platform::SystemError("lock", "the lock file"));
    if (Clock::now() >= deadline) return LockTimeout();
    usleep(kPollMicroseconds);
  }
  return kOk;
}

// Locks a directory for shared or exclusive use. A file system that does not know this kind of lock goes without.
Status LockDirectory(int directory, int kind, Clock::time_point deadline) {
  while (flock(directory, kind | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return kOk;
    if (Clock::now() >= deadline) return LockTimeout();
    usleep(kPollMicroseconds);
  }
  return kOk;
}

// Only the one who is next in line waits for the lock itself. So one who gives it back and wants it again at
// once stands behind those who waited; without the line a busy console keeps another out for seconds.
Status WaitInLine(int fd, long owner_byte, Clock::time_point deadline) {
  const long next_in_line = owner_byte + 1;
  if (const Status status = WaitForByte(fd, next_in_line, deadline); status != kOk) return status;
  const Status status = WaitForByte(fd, owner_byte, deadline);
  SetLock(fd, next_in_line, F_UNLCK);
  return status;
}

// The same name gives the same byte in every process (FNV-1a), an even one, far below the largest offset.
long ByteOf(std::string_view name) {
  std::uint64_t hash = 0xCBF29CE484222325;
  for (const char c : name) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
  return static_cast<long>(hash >> 2 & ~std::uint64_t{1});
}

bool Exists(const std::string& path) {
  struct stat ignored {};
  return lstat(path.c_str(), &ignored) == 0;
}

}  // namespace

FileLock::FileLock(std::string path, std::string_view name)
    : path_(std::move(path)), owner_byte_(ByteOf(name)) {}

Status FileLock::Acquire() {
  if (file_ >= 0) return Fail(kAlreadyLocked, StatusText(kAlreadyLocked));
  const Clock::time_point deadline = Clock::now() + WaitLimit();
  RegisterForkHandlers();
  for (;;) {
    Status status = Open(deadline);
    if (status == kOk) status = WaitInLine(file_, owner_byte_, deadline);
    const bool current = status == kOk && platform::IsFileAt(path_, file_);
    if (current) return kOk;
    Close();
    if (status != kOk) return status;  // else the file was taken away while it was waited for
  }
}

// Every holder has the directory for shared use; so a lock file is made, for exclusive use, while nobody holds a lock.
Status FileLock::Open(Clock::time_point deadline) {
  {
    const std::lock_guard guard(Held().mutex);
    directory_ = Hold(
        platform::Descriptor(open(platform::ParentOf(path_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
  }
  if (directory_ < 0) return Fail(platform::SystemError("open", platform::ParentOf(path_)));
  platform::FileError error{ENOENT, {}};
  while (file_ < 0 && error.number == ENOENT) {
    if (!Exists(path_))
      if (const Status status = MakeFile(deadline); status != kOk) return status;
    const std::lock_guard guard(Held().mutex);
    file_ = Hold(platform::OpenExistingPrivateFile(path_, error));
  }
  if (file_ < 0) return Fail(error);
  return LockDirectory(directory_, LOCK_SH, deadline);
}

Status FileLock::MakeFile(Clock::time_point deadline) {
  if (const Status status = LockDirectory(directory_, LOCK_EX, deadline); status != kOk) return status;
  platform::FileError error;
  return platform::MakePrivateFile(path_, error) ? kOk : Fail(error);
}

void FileLock::Close() {
  CloseHeld(file_);
  CloseHeld(directory_);
}

Status FileLock::Release() {
  if (file_ < 0) return kNotLocked;
  Close();
  return kOk;
}

std::chrono::milliseconds FileLock::WaitLimit() { return wait_limit; }

void FileLock::SetWaitLimit(std::chrono::milliseconds limit) { wait_limit = limit; }

}  // namespace alertstore
