// SPDX-License-Identifier: MIT
#include "server/report.h"

#include <nlohmann/json.hpp>

#include "server/json_members.h"

namespace alertserver {
namespace {

constexpr Verdict kVerdicts[] = {Verdict::kDelivered, Verdict::kSent, Verdict::kRefused, Verdict::kNotReached,
                                 Verdict::kNotPossible};

Verdict VerdictFrom(const std::string& word) {
  for (const Verdict verdict : kVerdicts)
    if (WordOf(verdict) == word) return verdict;
  return Verdict::kNotReached;
}

Json StepsJson(const std::vector<ReportStep>& steps) {
  Json list = Json::array();
  for (const ReportStep& step : steps)
    list.push_back({{"name", step.name},
                    {"result", step.result},
                    {"milliseconds", step.milliseconds},
                    {"said", step.said},
                    {"field", step.field},
                    {"record", step.record}});
  return list;
}

ReportStep StepFrom(const Json& step) {
  return {TextOf(step, "name"), TextOf(step, "result"), NumberOf(step, "milliseconds"),
          TextOf(step, "said"), TextOf(step, "field"),  TextOf(step, "record")};
}

}  // namespace

void MaskReport(const Secrets& secrets, Report& report) {
  for (std::string* text : {&report.explanation, &report.transcript, &report.field})
    *text = secrets.Mask(std::move(*text));
  for (ReportStep& step : report.steps)
    for (std::string* text : {&step.name, &step.result, &step.said, &step.field, &step.record})
      *text = secrets.Mask(std::move(*text));
}

Json ToJson(const Report& report) {
  return {{"verdict", WordOf(report.verdict)},
          {"explanation", report.explanation},
          {"manager", report.manager},
          {"started", report.started},
          {"ended", report.ended},
          {"steps", StepsJson(report.steps)},
          {"transcript", report.transcript},
          {"field", report.field}};
}

std::string ReportText(std::uint32_t job, const Report& report) {
  Json file = {{"version", 1}, {"job", job}};
  file.update(ToJson(report));
  return DumpJson(file);
}

Report ReportFromJson(const Json& object) {
  Report report;
  report.verdict = VerdictFrom(TextOf(object, "verdict"));
  report.explanation = TextOf(object, "explanation");
  report.manager = TextOf(object, "manager");
  report.started = TextOf(object, "started");
  report.ended = TextOf(object, "ended");
  for (const Json& step : ListOf(object, "steps")) report.steps.push_back(StepFrom(step));
  report.transcript = TextOf(object, "transcript");
  report.field = TextOf(object, "field");
  return report;
}

}  // namespace alertserver
