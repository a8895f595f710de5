// SPDX-License-Identifier: MIT
#include "platform/base/atomic_write.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <string_view>

#include "platform/base/process_lock.h"

namespace platform {
namespace {

using Clock = std::chrono::steady_clock;

// How long a writer waits for another one of the same file.
constexpr std::chrono::seconds kWriterLimit(5);

bool WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(fd, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

// Takes away what stands under the temporary name, unless it is the file of a writer at work. Whoever waited for one
// holds a file that has been renamed meanwhile.
bool ClearName(const std::string& path, Clock::time_point deadline) {
  const Descriptor there(open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (there.IsOpen()) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    if (LockOpenFile(there.Get(), left) == LockOutcome::kTimeout) {
      errno = EBUSY;
      return false;
    }
    if (!IsFileAt(path, there.Get())) return true;
  }
  return unlink(path.c_str()) == 0 || errno == ENOENT;
}

// A new file of that name, locked. One that was taken away before it was locked is followed by another.
Descriptor MakeLocked(const std::string& path) {
  const auto deadline = Clock::now() + kWriterLimit;
  for (;;) {
    Descriptor made(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (made.IsOpen()) {
      if (LockOpenFile(made.Get(), kWriterLimit) == LockOutcome::kHeld && IsFileAt(path, made.Get()))
        return made;
    } else if (errno != EEXIST || !ClearName(path, deadline)) {
      return made;
    }
    if (Clock::now() >= deadline) return Descriptor();
  }
}

bool Fill(int fd, const std::string& path, const std::string& bytes, unsigned mode) {
  return GiveToDirectoryOwner(fd, path) && fchmod(fd, mode) == 0 && WriteAll(fd, bytes) && fsync(fd) == 0;
}

WriteOutcome Replace(const std::string& path, const std::string& bytes, unsigned mode) {
  const std::string temporary = path + ".tmp";
  const Descriptor file = MakeLocked(temporary);
  if (!file.IsOpen()) return WriteOutcome::kFailed;
  if (!Fill(file.Get(), temporary, bytes, mode) || std::rename(temporary.c_str(), path.c_str()) != 0) {
    const int number = errno;
    unlink(temporary.c_str());
    errno = number;
    return WriteOutcome::kFailed;
  }
  return FlushDirectory(ParentOf(path)) ? WriteOutcome::kWritten : WriteOutcome::kNotFlushed;
}

}  // namespace

WriteOutcome ReplaceFile(const std::string& path, const std::string& bytes, unsigned mode, FileError* error) {
  const WriteOutcome outcome = Replace(path, bytes, mode);
  if (outcome != WriteOutcome::kWritten && error != nullptr)
    *error = SystemError(outcome == WriteOutcome::kFailed ? "write" : "flush the directory of", path);
  return outcome;
}

}  // namespace platform
