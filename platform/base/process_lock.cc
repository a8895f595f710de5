// SPDX-License-Identifier: MIT
#include "platform/base/process_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

namespace platform {

LockOutcome LockOpenFile(int descriptor, std::chrono::milliseconds limit) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  while (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return LockOutcome::kUnusable;
    if (std::chrono::steady_clock::now() >= deadline) return LockOutcome::kTimeout;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return LockOutcome::kHeld;
}

ProcessLock::ProcessLock(const std::string& path, std::chrono::milliseconds limit)
    : file_(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)), outcome_(LockOpenFile(file_, limit)) {}

ProcessLock::~ProcessLock() {
  if (file_ >= 0) close(file_);
}

}  // namespace platform
