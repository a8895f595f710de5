// SPDX-License-Identifier: MIT
#include "tests/server/test_site.h"

#include <fstream>

#include "platform/base/atomic_write.h"
#include "platform/base/base64.h"
#include "platform/base/paths.h"
#include "server/server.h"

namespace test_support {

TestSite::TestSite() {
  configuration = {{"format", "alerting-configuration"},
                   {"version", 1},
                   {"alertManagers", Json::array()},
                   {"services", Json::array()},
                   {"responses", Json::array()},
                   {"snmpManagers", Json::array()},
                   {"modems", Json::array()},
                   {"locations", Json::array()},
                   {"pagingProviders", Json::array()}};
  std::filesystem::create_directory(Spool());
  std::filesystem::permissions(Spool(), std::filesystem::perms::owner_all);
}

Json& TestSite::AddService(const std::string& type, std::uint32_t record_type, Json settings) {
  response.serviceId = platform::GUID::Generate();
  response.serviceRecordType = record_type;
  const std::string id = response.serviceId.ToString();
  Json service = {
      {"id", id}, {"name", "Service"}, {"type", type}, {"enabled", true}, {"users", Json::array()}};
  if (!settings.is_null()) service["settings"] = std::move(settings);
  configuration["services"].push_back(std::move(service));
  configuration["alertManagers"].push_back(
      {{"id", platform::GUID::Generate().ToString()},
       {"name", kManager},
       {"services", Json::array({{{"serviceId", id}, {"backup", false}}})}});
  WriteConfiguration();
  return configuration["services"].back();
}

void TestSite::AddUser(const std::string& name, const std::string& address) {
  response.userId = platform::GUID::Generate();
  response.userName.Assign(name);
  configuration["services"].back()["users"].push_back(
      {{"userId", response.userId.ToString()}, {"name", name}, {"address", address}, {"enabled", true}});
  WriteConfiguration();
}

void TestSite::WriteConfiguration() const {
  platform::WriteFileAtomically(Data() + "/alert-managers.json", configuration.dump(), 0600);
}

void TestSite::WriteSettings(const Json& settings) const {
  platform::WriteFileAtomically(Data() + "/alertserver.json", settings.dump(), 0600);
}

Json TestSite::JobJson(std::uint32_t job) const {
  const auto* bytes = reinterpret_cast<const char*>(&response);
  return {{"version", 1},
          {"job", job},
          {"time", sent_at.empty() ? platform::ToUtcText(std::chrono::system_clock::now()) : sent_at},
          {"who", "somebody@here"},
          {"service", response.serviceId.ToString()},
          {"managers", managers},
          {"record", platform::EncodeBase64({bytes, sizeof response})}};
}

void TestSite::WriteJob(std::uint32_t job, const std::string& bytes) const {
  platform::WriteFileAtomically(JobPath(job), bytes, 0600);
}

bool TestSite::HasJob(std::uint32_t job) const {
  return std::filesystem::exists(std::filesystem::symlink_status(JobPath(job)));
}

Json TestSite::Report(std::uint32_t job) const {
  return Json::parse(ReadFile(ReportPath(job)), nullptr, false);
}

Json TestSite::Serve(std::uint32_t job, const std::string& manager) const {
  WriteJob(job);
  EXPECT_EQ(alertserver::Server(Data(), manager).Handle(job), alertserver::Handling::kAnswered);
  EXPECT_FALSE(HasJob(job));
  return Report(job);
}

void WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string ReadFile(const std::string& path) {
  std::string bytes;
  platform::ReadWholeFile(path, bytes);
  return bytes;
}

std::string Results(const Json& report) {
  std::string results;
  if (report.is_object())
    for (const Json& step : report["steps"])
      results += (results.empty() ? "" : ", ") + step["result"].get<std::string>();
  return results;
}

Json StepOf(const Json& report, const std::string& name) {
  if (report.is_object())
    for (const Json& step : report["steps"])
      if (step["name"] == name) return step;
  return nullptr;
}

}  // namespace test_support
