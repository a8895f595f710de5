// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace agentui {

/// What became of a test. Members bear the names that they have in the report's file (docs/spool.md).
struct Report {
  enum class Verdict {
    kDelivered,    ///< the next hop has said that it took the message
    kSent,         ///< nobody confirms that it arrived
    kRefused,      ///< by the other side
    kNotReached,   ///< the other side
    kNotPossible,  ///< from the alert server that took the test
    kFailed,       ///< in another way
    kUnanswered,   ///< no alert server reported in time
    kUnreadable    ///< there is a report, or none, that cannot be read; in no file
  };
  struct Step {
    std::string name, result;
    std::uint64_t milliseconds = 0;
    std::string said;      ///< the other side's answer
    std::string field{};   ///< of a failed step: what to correct
    std::string record{};  ///< which of the field's list; "" where there is but one
    bool operator==(const Step&) const = default;
  };

  Verdict verdict = Verdict::kUnreadable;
  std::string explanation;  ///< what happened, in sentences; may be empty
  std::string manager;
  std::string started, ended;  ///< UTC
  std::vector<Step> steps;
  std::string transcript;
  std::string field;  ///< what to correct in all, as the configuration file names it; "" for nothing

  bool operator==(const Report&) const = default;
};

/// Reads a report's file. What is no report of that job gives one that says so, in `explanation`; a member of another
/// kind than it should be counts as absent.
Report ReadReport(const std::string& path, std::uint32_t job);

/// The same from the file's text; nothing for what is no report of that job.
std::optional<Report> ParseReport(const std::string& text, std::uint32_t job);

/// A report as its file has it. Bytes that are no UTF-8 become U+FFFD.
std::string ReportFileText(std::uint32_t job, const Report& report);
/// True when the file is in place.
bool WriteReport(const std::string& path, std::uint32_t job, const Report& report);

/// Why a test came to nothing that no alert server reports on.
Report UnansweredReport(const std::vector<std::string>& managers);
/// `problem`: words that can follow "because".
Report NotHandedOverReport(const std::string& problem);

}  // namespace agentui
