// SPDX-License-Identifier: MIT
#include "server/job.h"

#include "platform/base/base64.h"
#include "server/json_members.h"

namespace alertserver {
namespace {

/// No service has more managers.
constexpr std::size_t kMaxManagers = 1000;
/// Of each a job has one at most, and a report keeps the transcripts of all.
constexpr std::size_t kMaxTries = 4;

std::vector<std::string> ManagersOf(const Json& file) {
  std::vector<std::string> names;
  for (const Json& name : ListOf(file, "managers"))
    if (name.is_string() && names.size() < kMaxManagers) names.push_back(name.get<std::string>());
  return names;
}

std::vector<Report> TriesOf(const Json& file) {
  std::vector<Report> tries;
  for (const Json& one : ListOf(file, "tries"))
    if (tries.size() < kMaxTries) tries.push_back(ReportFromJson(one));
  return tries;
}

std::optional<ResponseRecord> ResponseOf(const Json& file) {
  const auto bytes = platform::DecodeBase64(TextOf(file, "record"));
  return bytes ? DecodeResponse(*bytes) : std::nullopt;
}

/// Why a file cannot be read as a job, or "".
std::string WhatIsWrong(const Json& file, std::uint32_t number) {
  if (!file.is_object()) return "it is damaged";
  if (NumberOf(file, "version") != 1) return "it is of a version that this server does not know";
  if (NumberOf(file, "job") != number) return "its number is not that of its name";
  if (!platform::ParseUtcText(TextOf(file, "time"))) return "it does not say when it was sent";
  return "";
}

}  // namespace

std::optional<Job> ParseJob(const std::string& text, std::uint32_t number, std::string& problem) {
  const Json file = ParseObject(text);
  problem = WhatIsWrong(file, number);
  if (!problem.empty()) return std::nullopt;
  auto response = ResponseOf(file);
  if (!response) {
    problem = "it holds no response of " + std::to_string(kRecordSize) + " bytes";
    return std::nullopt;
  }
  Job job;
  job.number = number;
  job.time = *platform::ParseUtcText(TextOf(file, "time"));
  job.who = TextOf(file, "who");
  job.managers = ManagersOf(file);
  job.response = std::move(*response);
  job.tries = TriesOf(file);
  job.handed_on = platform::ParseUtcText(TextOf(file, "handedOn"));
  return job;
}

std::string WithTry(const std::string& text, const Report& report, platform::UtcTime now) {
  Json file = ParseObject(text);
  Json tries = ListOf(file, "tries");
  tries.push_back(ToJson(report));
  file["tries"] = std::move(tries);
  file["handedOn"] = platform::ToUtcText(now);
  return DumpJson(file);
}

}  // namespace alertserver
