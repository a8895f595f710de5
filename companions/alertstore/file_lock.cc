// SPDX-License-Identifier: MIT
#include "companions/alertstore/file_lock.h"

#include <fcntl.h>
#include <pthread.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <mutex>
#include <set>
#include <utility>

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

int OpenLockFile(const std::string& path) {
  RegisterForkHandlers();
  const std::lock_guard guard(Held().mutex);
  const int fd = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (fd < 0) return -1;
  try {
    Held().fds.insert(fd);
  } catch (...) {
    close(fd);
    throw;
  }
  return fd;
}

void CloseLockFile(int fd) {
  const std::lock_guard guard(Held().mutex);
  if (Held().fds.erase(fd) == 1) close(fd);  // in a forked child it is closed already
}

int SetLock(int fd, long byte, short type) {
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  lock.l_start = byte;
  lock.l_len = 1;
  return fcntl(fd, F_OFD_SETLK, &lock);
}

Status WaitForByte(int fd, long byte, Clock::time_point deadline) {
  while (SetLock(fd, byte, F_WRLCK) != 0) {
    if (errno != EAGAIN && errno != EACCES && errno != EINTR) return kIoError;
    if (Clock::now() >= deadline) return kLockTimeout;
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

}  // namespace

FileLock::FileLock(std::string path, std::string_view name)
    : path_(std::move(path)), owner_byte_(ByteOf(name)) {}

Status FileLock::Acquire() {
  if (fd_ >= 0) return kAlreadyLocked;
  const int fd = OpenLockFile(path_);
  if (fd < 0) return kIoError;
  const Status status = WaitInLine(fd, owner_byte_, Clock::now() + WaitLimit());
  if (status != kOk) {
    CloseLockFile(fd);
    return status;
  }
  fd_ = fd;
  return kOk;
}

Status FileLock::Release() {
  if (fd_ < 0) return kNotLocked;
  CloseLockFile(std::exchange(fd_, -1));
  return kOk;
}

std::chrono::milliseconds FileLock::WaitLimit() { return wait_limit; }

void FileLock::SetWaitLimit(std::chrono::milliseconds limit) { wait_limit = limit; }

}  // namespace alertstore
