// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/base/base64.h"
#include "platform/base/host_name.h"
#include "platform/base/utc_time.h"
#include "tests/console/alertctl_fixture.h"
#include "tests/support/program.h"

namespace trials {

/// A site that an administrator set up from the shell. Its tests are sent by the real programs.
class TrialTest : public AlertctlUserTest {
 protected:
  using json = nlohmann::json;

  /// The path of a file of one line.
  std::string Line(const std::string& text) {
    const std::string path = root_ + "/line-" + std::to_string(++lines_);
    std::ofstream(path) << text << '\n';
    return path;
  }
  void WriteSettings(const json& settings, const std::string& data) const {
    platform::WriteFileAtomically(data + "/alertserver.json", settings.dump(), 0600);
  }
  void WriteSettings(const json& settings) const { WriteSettings(settings, data_); }
  /// The window of Internet Mail has no fields for a login; the record has.
  void SetUpMail(const std::string& password) {
    RunJson({"service", "set", "Internet Mail", "--server", "127.0.0.1"});
    {
      Opened<alertstore::CAlertSMTPNtfyServDB> store;
      alertstore::ALRTSMTPSERVICEREC record = store.First();
      record.loginId.Assign("me@site.example");
      record.password.Assign(password);
      EXPECT_EQ(store.DBAlertRecUpdate(record), alertstore::kOk);
    }
    RunJson({"config", "write"});
  }
  void SetUpTraps(const std::string& community) {
    RunJson({"snmp-manager", "add", "127.0.0.1", "--computer", "Lab", "--community-file", Line(community)});
  }
  void SetAddress(const std::string& service, const std::string& address) {
    RunJson({"entry", "set", "Ann", service, address});
  }
  /// A response that goes to Ann through a service, or to nobody in particular. `record_type`: the type's code plus 1.
  alertstore::ALERTRESPREC ResponseThrough(const std::string& service, std::uint32_t record_type) {
    alertstore::ALERTRESPREC response{};
    response.serviceId = IdOf(RunJson({"service", "show", service}));
    response.serviceRecordType = record_type;
    response.userId = IdOf(RunJson({"user", "list"})[0]);
    response.userName.Assign("Ann");
    return response;
  }
  /// What `alertserver --once` reports of a job as consoles write it.
  json Once(const alertstore::ALERTRESPREC& response) {
    const std::string number = std::to_string(++jobs_), spool = data_ + "/spool/";
    const auto* bytes = reinterpret_cast<const char*>(&response);
    const json job = {{"version", 1},
                      {"job", jobs_},
                      {"time", platform::ToUtcText(std::chrono::system_clock::now())},
                      {"who", "somebody@here"},
                      {"service", response.serviceId.ToString()},
                      {"managers", {platform::HostName()}},
                      {"record", platform::EncodeBase64({bytes, sizeof response})}};
    std::filesystem::create_directory(spool);
    std::filesystem::permissions(spool, std::filesystem::perms::owner_all);
    platform::WriteFileAtomically(spool + number + ".json", job.dump(), 0600);
    EXPECT_EQ(test_support::Program({ALERTSERVER, "--data", data_, "--once", number}).Wait(), 0);
    std::string report;
    platform::ReadWholeFile(spool + number + ".report.json", report);
    return json::parse(report, nullptr, false);
  }
  /// The report of a test that alertctl sends, for which it starts an alert server where none runs.
  json Report(Arguments arguments) {
    arguments.push_back("--json");
    const Ran ran = Run(arguments);
    const json report = json::parse(ran.out, nullptr, false);
    EXPECT_TRUE(report.is_object()) << ran;
    return report;
  }

 private:
  static platform::GUID IdOf(const json& record) {
    return platform::GUID::Parse(record.value("id", "")).value_or(platform::kNullGuid);
  }

  int lines_ = 0, jobs_ = 0;
};

/// What the other side said to a step; "" where there is no such step.
inline std::string Said(const nlohmann::json& report, const std::string& step) {
  for (const auto& row : report.value("steps", nlohmann::json::array()))
    if (row["name"] == step) return row["said"];
  return "";
}

}  // namespace trials
