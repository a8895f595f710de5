// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "companions/alertstore/records_common.h"

// The directory through which tests go to an alert server and reports come back; docs/spool.md has both files.

namespace agentui {

/// `spool` in the data directory as it is now. It may not exist.
std::string SpoolDirectory();

std::string JobPath(const std::string& spool, std::uint32_t job);
std::string ReportPath(const std::string& spool, std::uint32_t job);

/// A random number of 31 bits, never 0, that has neither a job nor a report.
std::uint32_t NewJobNumber(const std::string& spool);

struct Job {
  std::uint32_t number = 0;
  /// The alert managers that deliver through the service, by their names; the backup last.
  std::vector<std::string> managers;
  alertstore::ALERTRESPREC record{};
};

/// Writes the job's file, and the directory where it is missing. Answers why it could not, in words that can follow
/// "because"; "" when it is there.
std::string WriteJob(const std::string& spool, const Job& job);

/// Writes a file of the spool so that readers see the whole of it. True when it is in place.
bool WriteSpoolFile(const std::string& path, const std::string& text);

inline constexpr std::size_t kMaxReports = 200;

/// Removes reports that are older than seven days, the oldest of more than kMaxReports, and what jobs left behind whose
/// consoles ended while they waited. What belongs to a job of `pending`, and a report whose job is still there, stays.
void CleanSpool(const std::string& spool, const std::set<std::uint32_t>& pending);

}  // namespace agentui
