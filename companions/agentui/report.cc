// SPDX-License-Identifier: MIT
#include "companions/agentui/report.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "companions/agentui/spool.h"
#include "platform/base/json_object.h"
#include "platform/base/paths.h"

namespace agentui {
namespace {

using Json = nlohmann::ordered_json;
using Verdict = Report::Verdict;

constexpr std::pair<const char*, Verdict> kVerdicts[] = {
    {"delivered", Verdict::kDelivered},     {"sent", Verdict::kSent},
    {"refused", Verdict::kRefused},         {"notReached", Verdict::kNotReached},
    {"notPossible", Verdict::kNotPossible}, {"failed", Verdict::kFailed},
    {"unanswered", Verdict::kUnanswered}};

std::string TextOf(const Json& object, const char* member) {
  const auto found = object.find(member);
  return found != object.end() && found->is_string() ? found->get<std::string>() : "";
}

std::uint64_t NumberOf(const Json& object, const char* member) {
  const auto found = object.find(member);
  return found != object.end() && found->is_number_unsigned() ? found->get<std::uint64_t>() : 0;
}

Verdict VerdictOf(const Json& file) {
  const std::string word = TextOf(file, "verdict");
  for (const auto& [name, verdict] : kVerdicts)
    if (word == name) return verdict;
  return Verdict::kUnreadable;
}

std::string WordOf(Verdict verdict) {
  for (const auto& [name, named] : kVerdicts)
    if (named == verdict) return name;
  return {};
}

std::vector<Report::Step> StepsOf(const Json& file) {
  std::vector<Report::Step> steps;
  const auto found = file.find("steps");
  if (found == file.end() || !found->is_array()) return steps;
  for (const Json& step : *found)
    if (step.is_object())
      steps.push_back({TextOf(step, "name"), TextOf(step, "result"), NumberOf(step, "milliseconds"),
                       TextOf(step, "said"), TextOf(step, "field"), TextOf(step, "record")});
  return steps;
}

Json ToJson(const std::vector<Report::Step>& steps) {
  Json list = Json::array();
  for (const Report::Step& step : steps)
    list.push_back({{"name", step.name},
                    {"result", step.result},
                    {"milliseconds", step.milliseconds},
                    {"said", step.said},
                    {"field", step.field},
                    {"record", step.record}});
  return list;
}

std::string Joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
  return text;
}

}  // namespace

std::optional<Report> ParseReport(const std::string& text, std::uint32_t job) {
  const Json file = platform::ParseJsonObject<Json>(text);
  if (!file.is_object() || NumberOf(file, "version") != 1 || NumberOf(file, "job") != job)
    return std::nullopt;
  const Verdict verdict = VerdictOf(file);
  if (verdict == Verdict::kUnreadable) return std::nullopt;
  return Report{verdict,
                TextOf(file, "explanation"),
                TextOf(file, "manager"),
                TextOf(file, "started"),
                TextOf(file, "ended"),
                StepsOf(file),
                TextOf(file, "transcript"),
                TextOf(file, "field")};
}

Report ReadReport(const std::string& path, std::uint32_t job) {
  std::string text;
  platform::ReadWholeFile(path, text);
  if (auto report = ParseReport(text, job)) return std::move(*report);
  Report unreadable;
  unreadable.explanation = "The report of this test is missing, damaged or not one of these: " + path + ".";
  return unreadable;
}

std::string ReportFileText(std::uint32_t job, const Report& report) {
  const Json file = {{"version", 1},
                     {"job", job},
                     {"verdict", WordOf(report.verdict)},
                     {"explanation", report.explanation},
                     {"manager", report.manager},
                     {"started", report.started},
                     {"ended", report.ended},
                     {"steps", ToJson(report.steps)},
                     {"transcript", report.transcript},
                     {"field", report.field}};
  return file.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

bool WriteReport(const std::string& path, std::uint32_t job, const Report& report) {
  return WriteSpoolFile(path, ReportFileText(job, report));
}

Report UnansweredReport(const std::vector<std::string>& managers) {
  Report report;
  report.verdict = Verdict::kUnanswered;
  report.explanation = "No alert server answered. ";
  report.explanation += managers.empty()
                            ? "There is none that could: no alert manager delivers through this service."
                            : "The service is delivered by " + Joined(managers) +
                                  ": see that an alert server is running there.";
  return report;
}

Report NotHandedOverReport(const std::string& problem) {
  Report report;
  report.verdict = Verdict::kFailed;
  report.explanation = "The test was not handed to an alert server, because " + problem + ".";
  return report;
}

}  // namespace agentui
