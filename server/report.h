// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

#include "server/secrets.h"
#include "server/verdict.h"

namespace alertserver {

/// A row of a report: what was done, what came of it ("done", "failed", "not needed"), how long it took, and the answer
/// of the other side. A failed one also tells what to correct.
struct ReportStep {
  std::string name, result;
  std::uint64_t milliseconds = 0;
  std::string said;
  std::string field;   ///< as that of the report
  std::string record;  ///< which of the field's list; "" where there is but one
};

/// What is told about a test. Members bear the names that they have in the report's file (docs/spool.md).
struct Report {
  Verdict verdict = Verdict::kNotPossible;
  std::string explanation;  ///< in sentences, for the user
  std::string manager;
  std::string started, ended;  ///< UTC
  std::vector<ReportStep> steps;
  std::string transcript;  ///< one line each
  std::string field;       ///< what to correct, as the configuration file names it; "" for nothing
};

/// Masks secrets in every text.
void MaskReport(const Secrets& secrets, Report& report);

/// A report as its file has it.
std::string ReportText(std::uint32_t job, const Report& report);

/// The members of a report without version and number, as a job that is handed on has them.
nlohmann::ordered_json ToJson(const Report& report);
/// A member that is missing or of another type counts as empty, an unknown verdict as notReached.
Report ReportFromJson(const nlohmann::ordered_json& object);

}  // namespace alertserver
