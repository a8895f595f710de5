// SPDX-License-Identifier: MIT
#pragma once

#include "platform/base/process_lock.h"

// The data directory that a program of the console works in.

namespace site {

/// Throws a Failure (kStoreFailure) when it is not there and cannot be made.
void MakeDataDirectory();
/// Throws a Failure (kNothingMatched) when no stores are there: opening them would make empty ones, also
/// where the directory is a mistyped one.
void RequireData();

/// The turn of the one alertctl that changes a data directory. A verb looks records up before it writes, and
/// between the two no other may write. Waits, then throws a Failure (kStoreFailure).
class DirectoryTurn {
 public:
  DirectoryTurn();

 private:
  platform::ProcessLock lock_;
};

}  // namespace site
