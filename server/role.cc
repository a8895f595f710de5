// SPDX-License-Identifier: MIT
#include "server/role.h"

#include <algorithm>

#include "platform/base/utf8.h"

namespace alertserver {
namespace {

bool Names(const std::vector<std::string>& managers, const std::string& manager) {
  return std::ranges::any_of(
      managers, [&](const std::string& name) { return platform::EqualIgnoringCase(name, manager); });
}

bool HasTried(const Job& job, const std::string& manager) {
  return std::ranges::any_of(
      job.tries, [&](const Report& one) { return platform::EqualIgnoringCase(one.manager, manager); });
}

/// A manager that is no backup for the service, and one that is nothing but that.
bool IsFirst(const std::string& manager, const Job& job, const Configuration& configuration) {
  return configuration.Delivers(manager, job.response.service, false) ||
         !configuration.Delivers(manager, job.response.service, true);
}

bool AllFirstHaveTried(const Job& job, const Configuration& configuration) {
  return std::ranges::all_of(job.managers, [&](const std::string& name) {
    return !IsFirst(name, job, configuration) || HasTried(job, name);
  });
}

}  // namespace

std::chrono::milliseconds AnswerLimit(const Job& job) {
  const bool is_pager = job.response.service_type == 11 || job.response.service_type == 12;
  return std::chrono::seconds(is_pager ? 120 : 60);
}

Role RoleOf(const std::string& manager, const Job& job, const Configuration& configuration,
            platform::UtcTime now) {
  if (now - job.time > AnswerLimit(job)) return Role::kStale;
  if (!Names(job.managers, manager)) return Role::kNone;
  if (HasTried(job, manager))
    return job.handed_on && now - *job.handed_on < kTakeLimit ? Role::kWait : Role::kAnswer;
  const bool comes_now = IsFirst(manager, job, configuration) || AllFirstHaveTried(job, configuration) ||
                         now - job.time > kTakeLimit;
  return comes_now ? Role::kDeliver : Role::kWait;
}

std::string NextManager(const std::string& manager, const Job& job, const Configuration& configuration) {
  const auto next = std::ranges::find_if(job.managers, [&](const std::string& name) {
    return !platform::EqualIgnoringCase(name, manager) && !HasTried(job, name) &&
           configuration.Delivers(name, job.response.service, true);
  });
  return next != job.managers.end() ? *next : "";
}

std::string MissingManagers(const std::string& manager, const Job& job, const Configuration& configuration) {
  std::string missing;
  if (IsFirst(manager, job, configuration)) return missing;
  for (const std::string& name : job.managers)
    if (IsFirst(name, job, configuration) && !HasTried(job, name))
      missing += (missing.empty() ? "" : ", ") + name;
  return missing;
}

}  // namespace alertserver
