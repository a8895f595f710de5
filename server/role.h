// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "server/configuration.h"
#include "server/job.h"

namespace alertserver {

/// What an alert manager has to do with a job at a moment.
enum class Role {
  kNone,     ///< the job does not name it
  kStale,    ///< nobody waits for the job any more
  kWait,     ///< another manager comes first
  kDeliver,  ///< it is the one to deliver
  kAnswer    ///< it has tried, and the manager to which it handed the job on did not take it
};

/// How long a console waits for a report; pagers dial first.
std::chrono::milliseconds AnswerLimit(const Job& job);
/// How long a manager that was to deliver, or that a job was handed on to, is waited for.
inline constexpr std::chrono::seconds kTakeLimit(15);

Role RoleOf(const std::string& manager, const Job& job, const Configuration& configuration,
            platform::UtcTime now);

/// The manager that a job is handed on to when this one cannot deliver: the backup, unless it has tried before. "" where
/// there is none.
std::string NextManager(const std::string& manager, const Job& job, const Configuration& configuration);

/// The managers that come before this one, which is the backup, and have not tried; "" where there are none.
std::string MissingManagers(const std::string& manager, const Job& job, const Configuration& configuration);

}  // namespace alertserver
