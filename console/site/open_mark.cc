// SPDX-License-Identifier: MIT
#include "console/site/open_mark.h"

#include <pwd.h>
#include <unistd.h>

#include <fstream>

#include "platform/base/atomic_write.h"
#include "platform/base/host_name.h"
#include "platform/base/paths.h"
#include "platform/base/utc_time.h"

namespace site {
namespace {

constexpr std::chrono::milliseconds kDoNotWait(0);

std::string WhoIAm() {
  const passwd* account = getpwuid(getuid());
  return (account != nullptr ? account->pw_name : std::to_string(getuid())) + std::string(" on ") +
         platform::HostName();
}

/// "2026-03-01 12:30 UTC"
std::string Now() {
  const std::string text = platform::ToUtcText(std::chrono::system_clock::now());
  return text.substr(0, 10) + " " + text.substr(11, 5) + " UTC";
}

std::string MarkFile(const std::string& name, platform::FileError& problem) {
  const std::string directory = platform::DataDirectory() + "/open";
  return platform::PreparePrivateDirectory(directory, problem) ? directory + "/" + name : "";
}

}  // namespace

OpenMark::OpenMark(const std::string& name) : path_(MarkFile(name, problem_)) {
  if (path_.empty()) return;
  lock_ = std::make_unique<platform::ProcessLock>(path_ + ".lock", kDoNotWait);
  if (lock_->Outcome() == platform::LockOutcome::kTimeout) other_ = ReadHolder();
  if (lock_->Outcome() == platform::LockOutcome::kHeld) WriteHolder();
  if (lock_->Outcome() == platform::LockOutcome::kUnusable) problem_ = lock_->Error();
}

OpenMark::~OpenMark() = default;

// Who has just taken the lock may not have written yet.
OpenMark::Holder OpenMark::ReadHolder() const {
  Holder holder{"another console", "just now"};
  std::ifstream file(path_);
  std::string who, since;
  if (std::getline(file, who) && std::getline(file, since)) holder = {who, since};
  return holder;
}

void OpenMark::WriteHolder() const {
  platform::FileError unusable;
  platform::ReplaceFile(path_, WhoIAm() + "\n" + Now() + "\n", 0600, &unusable);
}

}  // namespace site
