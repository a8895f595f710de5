// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/base/utc_time.h"
#include "server/keywords.h"
#include "server/report.h"
#include "server/response_record.h"

namespace alertserver {

/// A test, as its file has it (docs/spool.md).
struct Job {
  std::uint32_t number = 0;
  platform::UtcTime time{};
  std::string who;
  std::vector<std::string> managers;
  ResponseRecord response;
  /// What other managers came to that were to deliver it before, in order.
  std::vector<Report> tries;
  std::optional<platform::UtcTime> handed_on;  ///< when the last of them gave it to the next

  /// Set before delivery: the texts that are sent, their keywords filled in, and with what.
  std::string message, subject;
  KeywordSources keyword_sources{};
};

/// No job's file is longer, in bytes.
inline constexpr std::size_t kMaxJobSize = 256 * 1024;

/// Reads the text of a job's file. Where it is none, `problem` says why, in words that can follow "because".
std::optional<Job> ParseJob(const std::string& text, std::uint32_t number, std::string& problem);

/// The file's text with one more try in it, handed on now.
std::string WithTry(const std::string& text, const Report& report, platform::UtcTime now);

}  // namespace alertserver
