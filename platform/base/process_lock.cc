// SPDX-License-Identifier: MIT
#include "platform/base/process_lock.h"

#include <sys/file.h>

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
    : outcome_(Lock(path, limit)) {}

// A file that was taken away while its lock was waited for keeps nobody out any more.
LockOutcome ProcessLock::Lock(const std::string& path, std::chrono::milliseconds limit) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  for (;;) {
    file_ = OpenPrivateFile(path, error_);
    if (!file_.IsOpen()) return LockOutcome::kUnusable;
    const auto left = deadline - std::chrono::steady_clock::now();
    const LockOutcome outcome =
        LockOpenFile(file_.Get(), std::chrono::duration_cast<std::chrono::milliseconds>(left));
    if (outcome != LockOutcome::kHeld || IsFileAt(path, file_.Get())) return outcome;
  }
}

}  // namespace platform
