// SPDX-License-Identifier: MIT
// A report may come from any alert server, and from whoever else can write to the spool. A console shows it, and gives it
// to the clipboard whole.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "companions/agentui/report.h"
#include "companions/agentui/results_dialog.h"
#include "server/json_members.h"
#include "server/report.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr std::uint32_t kJob = 7;

/// What was read is written and read again the same, and is not much longer where people read it.
void UseAsConsole(const agentui::Report& report, std::size_t size) {
  const auto again = agentui::ParseReport(agentui::ReportFileText(kJob, report), kJob);
  if (!again || *again != report) std::abort();
  if (agentui::ReportText(report).size() > 500 + 20 * size) std::abort();
}

/// A server takes reports out of jobs that were handed on. What it then writes every console can read, and sees in it what
/// the server saw.
void UseAsServer(const std::string& text) {
  const alertserver::Report taken = alertserver::ReportFromJson(alertserver::ParseObject(text));
  const auto read = agentui::ParseReport(alertserver::ReportText(kJob, taken), kJob);
  if (!read || read->verdict > agentui::Report::Verdict::kNotPossible) std::abort();
  if (read->explanation != taken.explanation || read->manager != taken.manager) std::abort();
  if (read->transcript != taken.transcript || read->field != taken.field) std::abort();
  if (!std::ranges::equal(read->steps, taken.steps, [](const auto& a, const auto& b) {
        return a.name == b.name && a.result == b.result && a.milliseconds == b.milliseconds &&
               a.said == b.said;
      }))
    std::abort();
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  if (const auto report = agentui::ParseReport(text, kJob)) UseAsConsole(*report, size);
  UseAsServer(text);
  return 0;
}
