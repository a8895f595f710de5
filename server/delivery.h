// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "server/configuration.h"
#include "server/job.h"
#include "server/report.h"
#include "server/settings.h"

namespace alertserver {

/// What one manager's delivery came to.
struct DeliveryResult {
  Report report;
  bool backup_may_help = false;  ///< another manager's connection could fare better
};

/// Fills in the job's texts and sends them, over the backup modem too where this manager has it as a backup. Secrets are
/// masked in what comes back.
DeliveryResult Deliver(const std::string& manager, Job& job, const Configuration& configuration,
                       const Settings& settings);

/// One report on all that was tried: the tries of the job, then the last one.
Report WithTriesBefore(const Job& job, Report last);

/// Of the tries of a job that its backup did not take.
Report NotTakenOver(const Job& job, const std::string& backup);

/// A report without steps.
Report PlainReport(const std::string& manager, Verdict verdict, std::string explanation);

}  // namespace alertserver
