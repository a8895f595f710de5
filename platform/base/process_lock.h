// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>

#include "platform/base/private_file.h"

namespace platform {

enum class LockOutcome { kHeld, kTimeout, kUnusable };

/// Locks an open file against other processes, and against other openings of it here, for as long as it is
/// open. kTimeout when another kept it for longer than `limit`.
LockOutcome LockOpenFile(int descriptor, std::chrono::milliseconds limit);

/// Keeps other processes from what `path` stands for while it lives. The file is made where it is missing and
/// stays; the lock ends with the process, however that ends.
class ProcessLock {
 public:
  ProcessLock(const std::string& path, std::chrono::milliseconds limit);

  /// kUnusable when the file cannot be made or locked.
  LockOutcome Outcome() const { return outcome_; }
  /// Says what is wrong with the file when it is unusable.
  const FileError& Error() const { return error_; }

 private:
  LockOutcome Lock(const std::string& path, std::chrono::milliseconds limit);

  FileError error_;
  Descriptor file_;
  const LockOutcome outcome_;
};

}  // namespace platform
