// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <condition_variable>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <nlohmann/json.hpp>
#include <thread>

#include "companions/agentui/agentui.h"
#include "companions/agentui/corrections.h"
#include "companions/agentui/delivering_managers.h"
#include "companions/agentui/report.h"
#include "companions/agentui/spool.h"
#include "companions/agentui/test_request.h"
#include "desktops/scripted/scripted_desktop.h"
#include "platform/base/base64.h"
#include "platform/base/host_name.h"
#include "platform/base/low_memory.h"
#include "platform/base/paths.h"
#include "platform/base/presence.h"
#include "platform/ui/dialog.h"
#include "tests/companions/store_fixture.h"
#include "tests/support/failing_engine.h"
#include "tests/support/temporary.h"

namespace fs = std::filesystem;
using agentui::Report;
using agentui::ReportPath;
using alertstore::ALERTRESPREC;
using desktops::Person;
using nlohmann::json;
using std::chrono::hours;
using std::chrono::milliseconds;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

/// Waits that no test lasts as long as; a look takes a moment.
constexpr agentui::TestTimes kPatient{milliseconds(1), hours(1), hours(1)};
constexpr agentui::TestTimes kImpatient{milliseconds(1), milliseconds(5), hours(1)};

constexpr char kCorrect[] = "Co&rrect...";

/// What the callback is told, on whatever thread.
class Told {
 public:
  static void Callback(std::uint32_t job) {
    const std::lock_guard lock(mutex_);
    jobs_.push_back(job);
    changed_.notify_all();
  }
  static void Forget() { jobs_.clear(); }
  /// The first jobs told, once there are so many; fewer where they do not come.
  static std::vector<std::uint32_t> Wait(std::size_t count) {
    std::unique_lock lock(mutex_);
    changed_.wait_for(lock, std::chrono::seconds(20), [count] { return jobs_.size() >= count; });
    return jobs_;
  }

 private:
  static inline std::mutex mutex_;
  static inline std::condition_variable changed_;
  static inline std::vector<std::uint32_t> jobs_;
};

class TestSendsTest : public StoreTest {
 protected:
  void SetUp() override {
    Told::Forget();
    record_.serviceId = platform::GUID::Generate();
    record_.message.Assign("message");
    record_.serviceRecordType = 5;
    Use(kPatient);
  }
  void TearDown() override { EXPECT_THAT(desktop_.script.Failures(), IsEmpty()); }

  void Use(const agentui::TestTimes& times) {
    component_ = agentui::MakeAgentUi(times);
    component_->RegisterTestButtonCallbackMessageHandler(&Told::Callback);
  }

  void Enable(std::string_view manager, const platform::GUID& service, bool backup = false) {
    alertstore::ALRT_SRV_CFGREC record{};
    record.managerName.Assign(manager);
    alertstore::ALRTSERV_INST_NTFY_SERVREC entry{};
    entry.managerGuid = test_support::AddRecord(Opened<alertstore::CAlert_SRV_CFGDB>(), record);
    entry.serviceGuid = service;
    entry.isBackup = backup ? 1 : 0;
    test_support::AddRecord(Opened<alertstore::CAlertSERV_INST_NTFY_SERVDB>(), entry);
  }

  void Send() {
    const platform::LowMemory memory(sizeof record_);
    std::memcpy(memory.Data(), &record_, sizeof record_);
    const agentui::TestRequest request{20, {0, 0}, memory.Address(), 0};
    component_->SendTestButtonToAlertServer(&request);
  }

  /// Sends a test; the number of its job, whose file is the only one.
  std::uint32_t SendOne() {
    Send();
    const std::vector<std::string> names = Spool();
    EXPECT_THAT(names, SizeIs(1));
    return names.empty() ? 0 : static_cast<std::uint32_t>(std::stoul(names.front()));
  }

  std::vector<std::string> Spool() const {
    std::vector<std::string> names;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(spool_, none)) names.push_back(entry.path().filename());
    return names;
  }

  void Lay(const std::string& name, hours age, const std::string& bytes = "{}") const {
    fs::create_directories(spool_);
    fs::permissions(spool_, fs::perms::owner_all);
    std::ofstream(spool_ + "/" + name) << bytes;
    fs::last_write_time(spool_ + "/" + name, fs::file_time_type::clock::now() - age);
  }

  json FileOf(std::uint32_t job) const {
    std::string bytes;
    EXPECT_TRUE(platform::ReadWholeFile(agentui::JobPath(spool_, job), bytes));
    return json::parse(bytes, nullptr, false);
  }

  /// What the window of that test says.
  std::string ShownFor(std::uint32_t job) {
    std::string screen;
    desktop_.script.ExpectWindow("Test Results", [&screen](Person& person) {
      screen = person.Screen();
      person.Press("OK");
    });
    component_->DisplayTestEventResultsDialog(nullptr, job);
    desktop_.RunPosted();
    return screen;
  }

  desktops::ScriptedDesktop desktop_;
  const std::string spool_ = directory_ + "/spool";
  ALERTRESPREC record_{};
  std::unique_ptr<agentui::AgentUi> component_;
};

TEST_F(TestSendsTest, NothingIsSentForARequestThatIsNone) {
  const agentui::TestRequest short_one{19, {0, 0}, 1, 1}, without_record{20, {0, 0}, 0, 1};
  for (const agentui::TestRequest* request :
       {static_cast<const agentui::TestRequest*>(nullptr), &short_one, &without_record})
    component_->SendTestButtonToAlertServer(request);
  EXPECT_THAT(Spool(), IsEmpty());
}

TEST_F(TestSendsTest, AJobHoldsTheRecordAndWhoDelivers) {
  Enable("SPARE", record_.serviceId, true);
  Enable("FIRST", record_.serviceId);
  Enable("OTHER", platform::GUID::Generate());
  Enable("SECOND", record_.serviceId);
  const std::uint32_t job = SendOne();
  EXPECT_TRUE(job > 0 && job <= 0x7FFFFFFF) << job;
  const json file = FileOf(job);
  EXPECT_EQ(file["version"], 1);
  EXPECT_EQ(file["job"], job);
  EXPECT_EQ(file["service"], record_.serviceId.ToString());
  EXPECT_EQ(file["managers"], json({"FIRST", "SECOND", "SPARE"}));
  EXPECT_THAT(file["who"].get<std::string>(), testing::MatchesRegex(".+@.+"));
  EXPECT_EQ(platform::DecodeBase64(file["record"].get<std::string>()),
            std::string(reinterpret_cast<const char*>(&record_), sizeof record_));
  struct stat found {};
  EXPECT_EQ(stat(agentui::JobPath(spool_, job).c_str(), &found), 0);
  EXPECT_EQ(found.st_mode & 0777, 0600u);
  EXPECT_EQ(stat(spool_.c_str(), &found), 0);
  EXPECT_EQ(found.st_mode & 0777, 0700u);
}

TEST_F(TestSendsTest, AReportIsToldByItsJobAndShown) {
  const std::uint32_t job = SendOne();
  const Report report{Report::Verdict::kFailed,
                      "The server refused the login.",
                      "R&D",
                      "2026-03-01T08:30:05Z",
                      "2026-03-01T08:30:07.345Z",
                      {{"Connect", "done", 12, "220 ready\r\n"}, {"Log in", "failed", 1500, "535 no"}},
                      "EHLO us\n535 no",
                      "password"};
  ASSERT_TRUE(agentui::WriteReport(ReportPath(spool_, job), job, report));
  EXPECT_THAT(Told::Wait(1), ElementsAre(job));
  desktop_.script.ExpectWindow("Test Results", [](Person& person) {
    EXPECT_THAT(person.Screen(),
                AllOf(HasSubstr("The test failed."), HasSubstr("refused the login"), HasSubstr("R&&D"),
                      HasSubstr("Time taken: 2.3 s"),
                      HasSubstr("the service's password, which its properties do not show")));
    EXPECT_THAT(person.Rows("&Steps:"), ElementsAre(ElementsAre("Connect", "done", "12 ms", "220 ready  "),
                                                    ElementsAre("Log in", "failed", "1.5 s", "535 no")));
    EXPECT_EQ(person.Text("&Transcript:"), "EHLO us\r\n535 no");
    EXPECT_FALSE(person.IsVisible(kCorrect)) << "nobody is registered who has windows";
    person.Press("&Copy");
    person.Press("OK");
  });
  {
    platform::ui::Dialog parent(nullptr, "gone by then");
    component_->DisplayTestEventResultsDialog(&parent, job);
  }
  desktop_.RunPosted();
  EXPECT_THAT(desktop_.clipboard.value_or(""),
              AllOf(HasSubstr("The test failed.\nThe server refused the login.\n"),
                    HasSubstr("\nLog in: failed, 1.5 s, 535 no\n"), HasSubstr("\nEHLO us\n535 no")));
}

/// A host that opens no windows, but says so.
class Host : public agentui::Corrections {
 public:
  Host() { agentui::RegisterCorrections(this); }
  ~Host() override { agentui::RegisterCorrections(nullptr); }
  bool CanOpen(const agentui::Correction& correction) const override { return correction.field != "odd"; }
  bool Open(const agentui::Correction& correction) override {
    wanted.push_back(correction);
    return wanted.size() > 1;
  }

  std::vector<agentui::Correction> wanted;
};

TEST_F(TestSendsTest, TheFieldOfTheChosenStepIsCorrectedElseOfTheFirstThatFailed) {
  record_.userId = platform::GUID::Generate();
  const std::uint32_t job = SendOne();
  Report report;
  report.verdict = Report::Verdict::kNotReached;
  report.steps = {{"Send to A", "done", 1, ""},
                  {"Send to B", "failed", 1, "no", "snmpManagers.community", "b"},
                  {"Send to C", "failed", 1, "unknown", "snmpManagers.address", "c&d"},
                  {"Send to D", "failed", 1, "", "odd"}};
  report.field = "snmpManagers.address";
  ASSERT_TRUE(agentui::WriteReport(ReportPath(spool_, job), job, report));
  Told::Wait(1);
  Host host;
  desktop_.script.ExpectWindow("Test Results", [](Person& person) {
    EXPECT_THAT(person.Screen(), HasSubstr("the community name of the SNMP manager (b)."));
    person.Press(kCorrect);
  });
  desktop_.script.ExpectWindow("Test Results", [&](Person& person) {
    EXPECT_EQ(host.wanted.size(), 1u) << "what could not be opened comes back to the report";
    person.ClickRow("&Steps:", 3);
    EXPECT_FALSE(person.IsEnabled(kCorrect));
    person.ClickRow("&Steps:", 2);
    EXPECT_THAT(person.Screen(), HasSubstr("the name or address of the SNMP manager (c&&d)."));
    person.Press(kCorrect);
  });
  component_->DisplayTestEventResultsDialog(nullptr, job);
  desktop_.RunPosted();
  ASSERT_THAT(host.wanted, SizeIs(2));
  EXPECT_EQ(host.wanted[0].field + " " + host.wanted[0].record, "snmpManagers.community b");
  EXPECT_EQ(host.wanted[1].field + " " + host.wanted[1].record, "snmpManagers.address c&d");
  EXPECT_EQ(host.wanted[1].subject.service, record_.serviceId);
  EXPECT_EQ(host.wanted[1].subject.target, record_.userId);

  Lay("7.report.json", hours(0),
      json({{"version", 1}, {"job", 7}, {"verdict", "refused"}, {"field", "address"}}).dump());
  desktop_.script.ExpectWindow("Test Results", [](Person& person) {
    EXPECT_FALSE(person.IsVisible(kCorrect)) << "another process's test: of what service?";
    person.Press("OK");
  });
  component_->DisplayTestEventResultsDialog(nullptr, 7);
  desktop_.RunPosted();
}

TEST_F(TestSendsTest, EveryVerdictOfAnAlertServerIsToldInWords) {
  const std::pair<const char*, const char*> verdicts[] = {
      {"delivered", "was delivered"},    {"sent", "nobody confirms"},        {"refused", "was refused"},
      {"notReached", "was not reached"}, {"notPossible", "is not possible"}, {"failed", "test failed"}};
  for (const auto& [word, text] : verdicts) {
    Lay("7.report.json", hours(0),
        json({{"version", 1}, {"job", 7}, {"verdict", word}, {"field", "snmpManagers.address"}}).dump());
    EXPECT_THAT(ShownFor(7), AllOf(HasSubstr(text), HasSubstr("address of the SNMP manager"))) << word;
  }
}

/// A stand-in for the alert server's program that says how it was started.
TEST_F(TestSendsTest, WhereThisMachineDeliversAndNoServerRunsOneIsStarted) {
  const test_support::SavedVariable saved("ALERTING_SERVER");
  const std::string program = directory_ + "/server", started = directory_ + "/started";
  std::ofstream(program) << "#!/bin/sh\necho \"$*\" >> " << started << "\n";
  fs::permissions(program, fs::perms::owner_all);
  setenv("ALERTING_SERVER", program.c_str(), 1);
  const auto said = [&] {
    std::string text;
    for (int tries = 0; tries < 500 && (!platform::ReadWholeFile(started, text) || !text.ends_with('\n'));
         ++tries)
      std::this_thread::sleep_for(milliseconds(10));
    return text;
  };
  Enable(platform::HostName(), record_.serviceId);
  const std::uint32_t job = SendOne();
  EXPECT_EQ(said(), "--data " + directory_ + " --manager " + platform::HostName() + " --once " +
                        std::to_string(job) + "\n");
  fs::remove(started);

  const platform::Presence server(spool_ + "/server.lock", platform::HostName());
  Send();
  record_.serviceId = platform::GUID::Generate();
  Enable("ELSEWHERE", record_.serviceId);
  Send();
  std::this_thread::sleep_for(milliseconds(100));
  EXPECT_FALSE(fs::exists(started)) << "a server runs, or is another machine's to run";
}

TEST_F(TestSendsTest, TheAlertServerBesideThisProgramAnswers) {
  const test_support::SavedVariable saved("ALERTING_SERVER");
  unsetenv("ALERTING_SERVER");
  Enable(platform::HostName(), record_.serviceId);
  const std::uint32_t job = SendOne();
  ASSERT_THAT(Told::Wait(1), ElementsAre(job));
  EXPECT_THAT(ShownFor(job), AllOf(HasSubstr("The test is not possible from this alert server."),
                                   HasSubstr("no file " + directory_ + "/alert-managers.json")));
}

TEST_F(TestSendsTest, EachOfSeveralTestsIsToldOnce) {
  const std::uint32_t first = SendOne();
  Report report;
  report.verdict = Report::Verdict::kDelivered;
  ASSERT_TRUE(agentui::WriteReport(ReportPath(spool_, first), first, report));
  EXPECT_THAT(Told::Wait(1), ElementsAre(first));
  Use(kImpatient);
  Send();
  Send();
  const auto told = Told::Wait(3);
  ASSERT_THAT(told, SizeIs(3));
  EXPECT_NE(told[1], told[2]);
}

TEST_F(TestSendsTest, WithoutACallbackThereIsAReportAllTheSame) {
  Use(kImpatient);
  component_->RegisterTestButtonCallbackMessageHandler(nullptr);
  Send();
  const auto is_there = [this] { return !Spool().empty() && Spool().front().ends_with(".report.json"); };
  for (int tries = 0; !is_there() && tries < 2000; ++tries) std::this_thread::sleep_for(milliseconds(1));
  EXPECT_TRUE(is_there());
  component_.reset();
  EXPECT_THAT(Told::Wait(0), IsEmpty());
}

TEST_F(TestSendsTest, ATestWithoutAnAnswerSaysWhoShouldHaveAnswered) {
  Use(kImpatient);
  Send();
  const auto nobody = Told::Wait(1);
  Enable("FIRST", record_.serviceId);
  Send();
  const auto told = Told::Wait(2);
  ASSERT_THAT(told, SizeIs(2));
  EXPECT_THAT(ShownFor(told[0]), AllOf(HasSubstr("The test was not answered."),
                                       HasSubstr("no alert manager delivers through this service")));
  EXPECT_THAT(ShownFor(told[1]), AllOf(HasSubstr("No alert server answered"), HasSubstr("delivered by FIRST"),
                                       Not(HasSubstr("Steps"))));
  EXPECT_FALSE(fs::exists(agentui::JobPath(spool_, told[1]))) << "a server would send it later";
}

TEST_F(TestSendsTest, APagerIsWaitedForLonger) {
  Use(kImpatient);
  record_.serviceRecordType = 12;
  const std::uint32_t pager = SendOne();
  record_.serviceRecordType = 5;
  Send();
  EXPECT_THAT(Told::Wait(1), ElementsAre(testing::Ne(pager)));
  EXPECT_TRUE(fs::exists(agentui::JobPath(spool_, pager)));
}

TEST_F(TestSendsTest, WhatKeepsATestFromBeingSentIsToldInItsReport) {
  std::ofstream(directory_ + "/spool") << "in the way";
  Send();
  ASSERT_THAT(Told::Wait(1), SizeIs(1));
  EXPECT_THAT(ShownFor(Told::Wait(1)[0]),
              AllOf(HasSubstr("not handed to an alert server, because"), HasSubstr(spool_)));
  fs::remove(directory_ + "/spool");

  const auto engine = std::make_shared<test_support::FailingEngine>(alertstore::CurrentEngine());
  alertstore::SetEngine(engine);
  engine->FailNth(test_support::kAnyStore, test_support::StoreOp::kOpen, 1);
  Send();
  ASSERT_THAT(Told::Wait(2), SizeIs(2));
  EXPECT_THAT(ShownFor(Told::Wait(2)[1]), HasSubstr("not handed to an alert server, because"));
  EXPECT_FALSE(fs::exists(agentui::JobPath(spool_, Told::Wait(2)[1])));
}

TEST_F(TestSendsTest, ADamagedReportSaysSo) {
  // The last is nested deeper than the stack of whoever writes it again has room for.
  const std::string deep = std::string(50'000, '[') + std::string(50'000, ']');
  const std::string damaged[] = {"",
                                 "{\"version\": 1",
                                 "[]",
                                 "{\"version\": 2, \"job\": 7, \"verdict\": \"failed\"}",
                                 "{\"version\": 1, \"job\": 8, \"verdict\": \"failed\"}",
                                 "{\"version\": 1, \"job\": 7, \"verdict\": \"well\"}",
                                 "\xFF",
                                 R"({"version": 1, "job": 7, "verdict": "sent", "more": )" + deep + "}"};
  for (const std::string& bytes : damaged) {
    Lay("7.report.json", hours(0), bytes);
    EXPECT_THAT(ShownFor(7), HasSubstr("The report of the test cannot be read.")) << bytes;
  }
  EXPECT_THAT(ShownFor(1), HasSubstr("cannot be read")) << "no report";
  Lay("7.report.json", hours(0), R"({"version": 1, "job": 7, "verdict": "delivered", "manager": 5,
      "steps": [1, {"name": "Dial", "milliseconds": -1}], "started": "yesterday"})");
  EXPECT_THAT(ShownFor(7), AllOf(HasSubstr("The test was delivered."), HasSubstr("Dial||0 ms"),
                                 Not(HasSubstr("Alert manager")), Not(HasSubstr("Time taken"))));
}

TEST_F(TestSendsTest, OldReportsGoAndWhatIsPendingStays) {
  for (int job = 1000; job < 1203; ++job) Lay(std::to_string(job) + ".report.json", hours(job - 1000) / 2);
  const char* const gone[] = {"1.report.json", "2.json", "3.json.tmp", "1202.report.json"};
  Lay("1.report.json", hours(24 * 7 + 1));
  Lay("2.json", hours(2));
  Lay("3.json.tmp", hours(2));
  const char* const kept[] = {"4.json",      "5.json",   "5.report.json",
                              "server.lock", "12x.json", "1199.report.json"};
  Lay("4.json", hours(0));
  Lay("5.json", hours(0));
  Lay("5.report.json", hours(24 * 8));
  Lay("server.lock", hours(24 * 30));
  Lay("12x.json", hours(24 * 30));
  Send();
  for (const char* name : gone) EXPECT_FALSE(fs::exists(spool_ + "/" + name)) << name;
  for (const char* name : kept) EXPECT_TRUE(fs::exists(spool_ + "/" + name)) << name;

  // A job that this console waits for stays, however old its file says that it is.
  for (const std::string& name : Spool()) Lay(name, hours(24 * 30));
  Send();
  EXPECT_THAT(Spool(), SizeIs(5)) << "both jobs of ours, the report that had a job, and the foreign files";
}

}  // namespace
