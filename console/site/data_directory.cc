// SPDX-License-Identifier: MIT
#include "console/site/data_directory.h"

#include <sys/stat.h>

#include <cerrno>

#include "console/site/failure.h"
#include "platform/base/paths.h"

namespace site {
namespace {

constexpr std::chrono::seconds kTurnLimit(10);
constexpr char kChooseAnother[] = ": check the permissions or choose another data directory with --data";

std::string TurnFile() { return platform::DataDirectory() + "/alertctl.lock"; }

}  // namespace

void MakeDataDirectory() {
  platform::FileError error;
  if (!platform::PreparePrivateDirectory(platform::DataDirectory(), error))
    throw Failure(kStoreFailure, error.text + (error.number == 0 ? "" : kChooseAnother));
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
    throw Failure(kStoreFailure, lock_.Error().text + (lock_.Error().number == 0 ? "" : kChooseAnother));
}

}  // namespace site
