// SPDX-License-Identifier: MIT
#include "console/alertctl_data.h"

#include <sys/stat.h>

#include <cerrno>

#include "console/alertctl_verbs.h"
#include "platform/base/paths.h"

namespace alertctl {
namespace {

constexpr std::chrono::seconds kTurnLimit(10);

std::string TurnFile() { return platform::DataDirectory() + "/alertctl.lock"; }

}  // namespace

void MakeDataDirectory() {
  if (!platform::MakeDirectories(platform::DataDirectory()))
    throw Failure(kStoreFailure, "cannot make the data directory " + platform::DataDirectory() +
                                     ": check the permissions above it or choose another with --data");
}

void RequireData() {
  struct stat ignored {};
  const std::string database = platform::DataDirectory() + "/alerting.db";
  if (stat(database.c_str(), &ignored) == 0 || errno != ENOENT) return;
  throw Failure(kNothingMatched, "there is no data in " + platform::DataDirectory() +
                                     "; run \"alertctl init\", or name another directory with --data");
}

DirectoryTurn::DirectoryTurn() : lock_(TurnFile(), kTurnLimit) {
  if (lock_.Outcome() == platform::LockOutcome::kTimeout)
    throw Failure(kStoreFailure, "another alertctl is changing this data directory; try again (" +
                                     platform::DataDirectory() + ")");
  if (lock_.Outcome() != platform::LockOutcome::kHeld)
    throw Failure(kStoreFailure,
                  "cannot lock " + TurnFile() +
                      ": the data directory cannot be written; check its permissions or choose "
                      "another with --data");
}

}  // namespace alertctl
