// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "platform/base/presence.h"
#include "server/role.h"
#include "server/server.h"
#include "tests/server/test_site.h"

namespace fs = std::filesystem;
using alertserver::Handling;
using alertserver::Server;
using test_support::Json;
using test_support::kManager;
using test_support::StepOf;
using testing::AllOf;
using testing::HasSubstr;

namespace {

class ServerSpool : public testing::Test {
 protected:
  void SetUp() override {
    site_.AddService("program-launch", 14);
    site_.response.subject.Assign("/bin/true");
  }

  Handling Handle(std::uint32_t job, const std::string& manager = kManager) {
    return Server(site_.Data(), manager).Handle(job);
  }
  /// The job is refused with a report and is gone.
  void ExpectRefused(std::uint32_t job, const char* why) {
    EXPECT_EQ(Handle(job), Handling::kRefused) << why;
    const Json report = site_.Report(job);
    EXPECT_EQ(report.value("verdict", ""), "refused") << why;
    EXPECT_THAT(report.value("explanation", ""), HasSubstr(why));
    EXPECT_FALSE(site_.HasJob(job)) << why;
  }

  test_support::TestSite site_;
};

TEST_F(ServerSpool, AJobIsAnsweredOnceAndRemoved) {
  const Json report = site_.Serve(7);
  EXPECT_EQ(report["version"], 1);
  EXPECT_EQ(report["job"], 7);
  EXPECT_EQ(report["verdict"], "delivered") << report;
  EXPECT_EQ(report["manager"], kManager);
  struct stat found {};
  ASSERT_EQ(stat(site_.ReportPath(7).c_str(), &found), 0);
  EXPECT_EQ(found.st_mode & 0777, 0600u);
  EXPECT_EQ(Handle(7), Handling::kNothing);

  // A server that was killed between the report and the job's end left both.
  site_.WriteJob(7);
  test_support::WriteFile(site_.ReportPath(7), "the answer");
  EXPECT_EQ(Handle(7), Handling::kAnswered);
  EXPECT_EQ(test_support::ReadFile(site_.ReportPath(7)), "the answer");
  EXPECT_FALSE(site_.HasJob(7));
}

TEST_F(ServerSpool, FilesThatAreNoJobsAreRefusedAndHarmNothing) {
  const auto changed = [&](const char* member, const Json& value) {
    Json job = site_.JobJson(1);
    job[member] = value;
    return job.dump();
  };
  const std::pair<std::string, const char*> damaged[] = {
      {"", "damaged"},
      {"{\"version\": 1", "damaged"},
      {"[1]", "damaged"},
      {std::string("\xFF\xFE\0", 3), "damaged"},
      {std::string(200'000, '['), "damaged"},
      {"{\"a\":" + std::string(100'000, '[') + std::string(100'000, ']') + "}", "damaged"},
      {std::string(300'000, ' '), "longer than"},
      {changed("version", 2), "of a version"},
      {changed("version", "1"), "of a version"},
      {changed("job", 2), "its number"},
      {changed("job", -1), "its number"},
      {changed("time", "yesterday"), "when it was sent"},
      {changed("record", "AAAA"), "no response"},
      {changed("record", Json::array()), "no response"},
      {changed("record", std::string(5320, '?')), "no response"}};
  for (const auto& [bytes, why] : damaged) {
    fs::remove(site_.ReportPath(1));
    site_.WriteJob(1, bytes);
    ExpectRefused(1, why);
  }
}

TEST_F(ServerSpool, WhatIsNoFileOfOursIsRefusedAndNotFollowed) {
  const std::string victim = site_.Data() + "/victim.json";
  const std::string text = site_.JobJson(1).dump();
  test_support::WriteFile(victim, text);
  fs::create_symlink(victim, site_.JobPath(1));
  ExpectRefused(1, "symbolic link");
  fs::create_hard_link(victim, site_.JobPath(2));
  ExpectRefused(2, "more than one name");
  ASSERT_EQ(mkfifo(site_.JobPath(3).c_str(), 0600), 0);
  ExpectRefused(3, "no file");
  EXPECT_EQ(test_support::ReadFile(victim), text);

  fs::create_directory(site_.JobPath(4));
  test_support::WriteFile(site_.JobPath(4) + "/kept", "x");
  EXPECT_EQ(Handle(4), Handling::kRefused);
  EXPECT_TRUE(fs::exists(site_.JobPath(4) + "/kept"));

  if (geteuid() != 0) GTEST_SKIP() << "only the system administrator can give files away";
  site_.WriteJob(5);
  ASSERT_EQ(chown(site_.JobPath(5).c_str(), 12345, 12345), 0);
  ExpectRefused(5, "another account");
}

TEST_F(ServerSpool, OnlyTheOwnManagersFreshJobsAreTaken) {
  site_.managers = {"OTHER"};
  site_.WriteJob(1);
  EXPECT_EQ(Handle(1), Handling::kNothing);
  EXPECT_TRUE(site_.HasJob(1));
  EXPECT_EQ(Handle(1, "other"), Handling::kAnswered) << "names of computers have no case";

  site_.sent_at = "2020-01-01T00:00:00Z";
  site_.WriteJob(2);
  EXPECT_EQ(Handle(2), Handling::kAnswered);
  EXPECT_FALSE(site_.HasJob(2));
  EXPECT_FALSE(fs::exists(site_.ReportPath(2))) << "nobody waits for it";
}

TEST_F(ServerSpool, WhatTheConfigurationLacksIsTold) {
  const auto explanation = [&] { return site_.Serve().value("explanation", ""); };
  site_.configuration["services"][0]["enabled"] = false;
  site_.WriteConfiguration();
  EXPECT_THAT(explanation(), HasSubstr("switched off"));
  fs::remove(site_.ReportPath(1));
  site_.configuration["services"][0]["type"] = "telegraph";
  site_.WriteConfiguration();
  EXPECT_THAT(explanation(), HasSubstr("telegraph"));
  fs::remove(site_.ReportPath(1));
  site_.configuration["services"].clear();
  site_.WriteConfiguration();
  EXPECT_THAT(explanation(), HasSubstr("does not have the service"));
  for (const char* text : {"", "{}", "[[[[", "{\"format\": \"alerting-configuration\", \"version\": 2}"}) {
    fs::remove(site_.ReportPath(1));
    test_support::WriteFile(site_.Data() + "/alert-managers.json", text);
    EXPECT_THAT(explanation(), HasSubstr("cannot be read, because it is damaged"));
  }
}

TEST_F(ServerSpool, TypesWhoseServicesAreGoneSaySo) {
  for (const auto& [type, number] : std::map<std::string, std::uint32_t>{
           {"mhs-mail", 1}, {"mci-mail", 3}, {"compuserve-mail", 4}, {"microsoft-mail", 6}, {"cc-mail", 7}}) {
    test_support::TestSite site;
    site.AddService(type, number, {{"password", "MARKED-SECRET"}});
    const Json report = site.Serve();
    EXPECT_EQ(report["verdict"], "notPossible") << type;
    EXPECT_THAT(report["explanation"].get<std::string>(), HasSubstr("Not possible from this server")) << type;
  }
}

/// A program of the site's that cannot be found, and a backup that has it.
TEST_F(ServerSpool, TheBackupTakesOverAndTheReportShowsBothTries) {
  site_.managers = {kManager, "SPARE"};
  site_.configuration["alertManagers"].push_back(
      {{"id", platform::GUID::Generate().ToString()},
       {"name", "SPARE"},
       {"services", Json::array({{{"serviceId", site_.response.serviceId.ToString()}, {"backup", true}}})}});
  site_.WriteConfiguration();
  const std::string program = site_.Data() + "/program";
  site_.response.subject.Assign(program);
  site_.WriteJob(1);
  EXPECT_EQ(Handle(1, "SPARE"), Handling::kNothing) << "the first comes first";
  EXPECT_EQ(Handle(1), Handling::kAnswered);
  EXPECT_FALSE(fs::exists(site_.ReportPath(1))) << "handed on";
  EXPECT_EQ(Handle(1), Handling::kNothing) << "waits for the backup";
  fs::copy("/bin/true", program);
  EXPECT_EQ(Handle(1, "SPARE"), Handling::kAnswered);
  const Json report = site_.Report(1);
  EXPECT_EQ(report["verdict"], "delivered") << report;
  EXPECT_EQ(report["manager"], "SPARE");
  EXPECT_EQ(StepOf(report, "ALPHA: Find the program")["result"], "failed");
  EXPECT_EQ(StepOf(report, "SPARE: Find the program")["result"], "done");
  EXPECT_EQ(report["field"], "subject");
  EXPECT_THAT(report["explanation"].get<std::string>(),
              AllOf(HasSubstr("ALPHA could not"), HasSubstr("took it over")));
  EXPECT_FALSE(site_.HasJob(1));
}

TEST_F(ServerSpool, ABackupThatDoesNotComeIsNamed) {
  site_.managers = {kManager, "SPARE"};
  site_.configuration["alertManagers"].push_back(
      {{"name", "SPARE"},
       {"services", Json::array({{{"serviceId", site_.response.serviceId.ToString()}, {"backup", true}}})}});
  site_.WriteConfiguration();
  Json job = site_.JobJson(1);
  const auto past = [](int seconds) {
    return platform::ToUtcText(std::chrono::system_clock::now() - std::chrono::seconds(seconds));
  };
  job["time"] = past(20);
  job["handedOn"] = past(16);
  job["tries"] = Json::array(
      {{{"verdict", "notReached"}, {"manager", "alpha"}, {"explanation", "Busy."}, {"field", "modemId"}}});
  site_.WriteJob(1, job.dump());
  EXPECT_EQ(Handle(1), Handling::kAnswered);
  const Json report = site_.Report(1);
  EXPECT_EQ(report["verdict"], "notReached");
  EXPECT_THAT(report["explanation"].get<std::string>(), AllOf(HasSubstr("Busy."), HasSubstr("SPARE")));
  // A first manager without a server is waited for, but not for ever.
  job.erase("tries");
  job["job"] = 2;
  job["time"] = past(5);
  site_.WriteJob(2, job.dump());
  EXPECT_EQ(Handle(2, "SPARE"), Handling::kNothing);
  job["time"] = past(16);
  site_.WriteJob(2, job.dump());
  EXPECT_EQ(Handle(2, "SPARE"), Handling::kAnswered);
  EXPECT_THAT(site_.Report(2)["explanation"].get<std::string>(), HasSubstr("ALPHA did not take the test"));
}

TEST_F(ServerSpool, TheBackupModemIsTriedBehindTheModem) {
  site_.WriteSettings({{"ports", {{"COM1", ""}}}});
  const Json modem = {
      {"modemId", platform::GUID::Generate().ToString()}, {"modemName", "M"}, {"baudRate", 9600}};
  Json& service = site_.AddService("numeric-pager", 12, {{"dialDelay", 1}});
  service["modem"] = service["backupModem"] = modem;
  site_.configuration["alertManagers"].back()["services"].push_back(
      {{"serviceId", site_.response.serviceId.ToString()}, {"backup", true}});
  site_.AddUser("Ann", "555");
  const Json report = site_.Serve();
  EXPECT_EQ(report["steps"].front()["name"].get<std::string>().find("Backup"), std::string::npos);
  EXPECT_THAT(report["steps"].back()["name"].get<std::string>(), testing::StartsWith("Backup modem: "));
  EXPECT_THAT(report["explanation"].get<std::string>(), HasSubstr("Over the backup modem: "));
}

TEST_F(ServerSpool, AServerIsSeenWhileItIsThere) {
  const std::string path = site_.Spool() + "/server.lock";
  EXPECT_FALSE(platform::IsPresent(path, kManager));
  EXPECT_FALSE(fs::exists(path)) << "looking makes nothing";
  {
    const platform::Presence first(path, kManager), second(path, "alpha");
    EXPECT_TRUE(first.IsShown() && second.IsShown());
    EXPECT_TRUE(platform::IsPresent(path, "Alpha"));
    EXPECT_FALSE(platform::IsPresent(path, "BETA"));
  }
  EXPECT_FALSE(platform::IsPresent(path, kManager));
}

}  // namespace
