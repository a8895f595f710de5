// SPDX-License-Identifier: MIT
// The laboratory as a console runs it: the site is pointed at it and back, whatever happens on the way.
#include "console/site/laboratory.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include "companions/alertstore/engine.h"
#include "companions/dbconfig/site.h"
#include "console/site/failure.h"
#include "console/site/laboratory_settings.h"
#include "console/site/laboratory_steps.h"
#include "platform/base/host_name.h"
#include "tests/console/alertctl_fixture.h"
#include "tests/support/failing_engine.h"

namespace {

using namespace alertstore;  // NOLINT: records of many kinds
using site::Laboratory;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// Odd enough to tell whether the very bytes come back.
constexpr char kOwnSettings[] =
    "{ \"siteName\": \"North\",\n\n  \"ports\": {\"COM2\": \"/dev/ttyUSB7\", \"COM1\": "
    "\"\"},\"smtpPort\":2525,\n"
    "\"mailTls\": \"verified\" }";

template <class Record>
std::string Bytes(const std::vector<Record>& records) {
  return {reinterpret_cast<const char*>(records.data()), records.size() * sizeof(Record)};
}

std::string Text(const std::vector<std::string>& records) {
  std::string text;
  for (const std::string& record : records) text += record + "\n";
  return text;
}

/// What a Failure says that the work ends with; "" without one.
std::string Complaint(const std::function<void()>& work) {
  try {
    work();
  } catch (const site::Failure& failure) {
    return failure.what();
  }
  return "";
}

template <class Store, class Edit>
void EditFirst(Edit edit) {
  Opened<Store> store;
  auto record = store.First();
  edit(record);
  EXPECT_EQ(store.DBAlertRecUpdate(record), kOk);
}

template <class Store>
auto First() {
  return Opened<Store>().First();
}

bool IsThere(pid_t process) { return kill(process, 0) == 0; }

class LaboratoryTest : public AlertctlSiteTest {
 protected:
  LaboratoryTest() { setenv("ALERTING_LABORATORY", ALERTLAB, 1); }
  ~LaboratoryTest() override { unsetenv("ALERTING_LABORATORY"); }

  std::string ReadFile(const char* name) {
    std::string bytes;
    return platform::ReadWholeFile(data_ + "/" + name, bytes) ? bytes : "no file";
  }
  void WriteFile(const std::string& name, const std::string& bytes) {
    EXPECT_EQ(platform::ReplaceFile(data_ + "/" + name, bytes, 0640), platform::WriteOutcome::kWritten);
  }
  json Settings() { return json::parse(ReadFile("alertserver.json")); }
  bool IsPointed() { return ReadFile("laboratory.json") != "no file"; }

  /// All that a laboratory could touch, byte by byte.
  std::string Everything() {
    dbconfig::Site site;
    EXPECT_EQ(dbconfig::ReadSite(site), kOk);
    std::string all = Bytes(site.services) + Bytes(site.managers) + Bytes(site.enabled_services);
    for (const auto& records : {site.snmp_managers, site.modems, site.locations, site.providers})
      all += Text(records);
    for (const auto& [type, records] : site.specific) all += Text(records);
    return all + ReadFile("alertserver.json") + ReadFile("alert-managers.json");
  }
  mode_t ModeOf(const char* name) {
    struct stat found {};
    EXPECT_EQ(stat((data_ + "/" + name).c_str(), &found), 0);
    return found.st_mode & 0777;
  }
  /// A program in the place of the laboratory's.
  void Pretend(const std::string& script) {
    const std::string path = root_ + "/pretended";
    std::ofstream(path) << "#!/bin/sh\n" << script << "\n";
    chmod(path.c_str(), 0700);
    setenv("ALERTING_LABORATORY", path.c_str(), 1);
  }

  Laboratory laboratory_;
};

TEST_F(LaboratoryTest, PointsTheFirstServicesAtItselfAndPutsEveryByteBack) {
  for (const char* settings : {"", kOwnSettings}) {
    if (*settings != '\0') WriteFile("alertserver.json", settings);
    const std::string before = Everything();
    laboratory_.Start();
    const pid_t process = laboratory_.Process()->Process();
    EXPECT_EQ(First<CAlertSMTPNtfyServDB>().smtpServer.View(), "127.0.0.1");
    EXPECT_EQ(First<CAlertUSR_SNMPDB>().address.View(), "127.0.0.1");
    EXPECT_EQ(First<CAlertAPAGENtfyServDB>().modemId, First<CAlertSERV_MODEMDB>().guid);
    EXPECT_EQ(First<CAlertNPAGENtfyServDB>().dialPrefix.View(), "ATDT");
    EXPECT_EQ(First<CAlertGENPORTNtfyServDB>().capabilities, 16u);
    const site::Json& places = laboratory_.Process()->Places();
    EXPECT_EQ(Settings()["ports"]["COM1"], places["modem"]["path"]);
    EXPECT_EQ(Settings()["smtpPort"], places["mail"]["port"]);
    EXPECT_EQ(Settings().value("siteName", ""), *settings != '\0' ? "North" : "") << "other values stay";
    EXPECT_EQ(Settings().value("mailTls", ""), *settings != '\0' ? "offered" : "");
    EXPECT_THAT(ReadFile("alert-managers.json"), HasSubstr("Laboratory modem")) << "the managers were told";
    EXPECT_EQ(ModeOf("laboratory.json"), 0600u);
    EXPECT_THAT(Run({"service", "list"}).err, HasSubstr("pointed at the laboratory"));
    EXPECT_THAT(laboratory_.Stop(), IsEmpty());
    EXPECT_TRUE(Everything() == before);
    EXPECT_FALSE(IsPointed());
    EXPECT_FALSE(IsThere(process));
    EXPECT_EQ(Run({"service", "list"}).err, "");
  }
  EXPECT_EQ(ModeOf("alertserver.json"), 0640u) << "as the file was";
}

// A console that is ended does nothing after the step that it was ended behind.
TEST_F(LaboratoryTest, ComesBackFromBetweenAnyTwoSteps) {
  WriteFile("alertserver.json", kOwnSettings);
  const std::string before = Everything();
  site::LaboratoryPlan plan = site::PlanLaboratory();
  {
    const site::LaboratoryProcess process(std::chrono::seconds(10));
    plan.changes.settings = site::PlanSettings(process.Places());
  }
  const auto there = site::StepsToLaboratory(plan.changes);
  for (std::size_t done = 0; done <= there.size(); ++done) {
    site::RememberLaboratory(plan.changes);
    for (std::size_t i = 0; i < done; ++i) there[i]();
    EXPECT_EQ(Everything() == before, done == 0);
    EXPECT_THAT(site::PutBackLeftOver(), IsEmpty()) << done;
    EXPECT_TRUE(Everything() == before) << done;
  }
  std::vector<std::string> left;
  const auto back = site::StepsBack(plan.changes, left);
  for (std::size_t done = 0; done <= back.size(); ++done) {
    site::RememberLaboratory(plan.changes);
    for (const auto& step : there) step();
    for (std::size_t i = 0; i < done; ++i) back[i]();
    EXPECT_THAT(site::PutBackLeftOver(), IsEmpty()) << done;
    EXPECT_TRUE(Everything() == before) << done;
  }
  EXPECT_THAT(left, IsEmpty());
  EXPECT_FALSE(IsPointed());
}

/// Fails one call of the stores after the other, in steps of seven, until there are no more.
class FailingLaboratoryTest : public LaboratoryTest {
 protected:
  FailingLaboratoryTest() { SetEngine(engine_); }
  ~FailingLaboratoryTest() override { SetEngine(own_); }

  /// Answers how many calls failed.
  int FailEach(const std::function<void()>& work, const std::function<void(const std::string&)>& look) {
    int failed = 0;
    for (int n = 1, before = -1; failed > before; n += 7) {
      before = failed;
      engine_->FailNth(test_support::kAnyStore, test_support::StoreOp::kAny, n);
      const std::string complaint = Complaint(work);
      failed += engine_->Failures();
      engine_->FailNone();
      look(std::to_string(n) + complaint);
    }
    return failed;
  }

  const std::shared_ptr<Engine> own_ = CurrentEngine();
  const std::shared_ptr<test_support::FailingEngine> engine_ =
      std::make_shared<test_support::FailingEngine>(own_);
};

TEST_F(FailingLaboratoryTest, AStartThatFailsLeavesNothingHalfDone) {
  WriteFile("alertserver.json", kOwnSettings);
  const std::string before = Everything();
  const auto look = [&](const std::string& at) {
    EXPECT_EQ(laboratory_.Runs(), IsPointed()) << at;
    if (laboratory_.Runs()) laboratory_.Stop();
    EXPECT_TRUE(Everything() == before) << at;
  };
  EXPECT_GT(FailEach([&] { laboratory_.Start(); }, look), 10);
}

TEST_F(FailingLaboratoryTest, AWayBackThatFailsIsGoneAgain) {
  WriteFile("alertserver.json", kOwnSettings);
  const std::string before = Everything();
  laboratory_.Start();
  const site::LaboratoryChanges changes = laboratory_.Plan().changes;
  laboratory_.Stop();
  const auto point = [&] {
    engine_->FailNone();
    site::RememberLaboratory(changes);
    for (const auto& step : site::StepsToLaboratory(changes)) step();
  };
  point();
  const auto look = [&](const std::string& at) {
    EXPECT_TRUE(IsPointed() || Everything() == before) << "forgotten too early " << at;
    site::PutBackLeftOver();
    EXPECT_TRUE(Everything() == before) << at;
    point();
  };
  EXPECT_GT(FailEach([] { site::PutBackLeftOver(); }, look), 10);
}

TEST_F(LaboratoryTest, WhatSomebodyChoseMeanwhileStays) {
  WriteFile("alertserver.json", kOwnSettings);
  laboratory_.Start();
  const auto own = platform::GUID::Generate();
  EditFirst<CAlertSMTPNtfyServDB>([](auto& mail) { mail.smtpServer.Assign("mail.example.org"); });
  EditFirst<CAlertNPAGENtfyServDB>([&](auto& pager) { pager.modemId = own; });
  EditFirst<CAlertAPAGENtfyServDB>([](auto& pager) { pager.maxTextLength = 99; });
  EditFirst<CAlertUSR_SNMPDB>([](auto& manager) { manager.community.Assign("north"); });
  json settings = Settings();
  settings["smtpPort"] = 25;
  settings["siteName"] = "South";
  WriteFile("alertserver.json", settings.dump());
  EXPECT_THAT(
      laboratory_.Stop(),
      ElementsAre("the mail server of \"Internet Mail\"", "the modem of \"Numeric Pager\"",
                  "the SNMP manager \"Laboratory\"", "values in alertserver.json that somebody changed"));
  EXPECT_EQ(First<CAlertSMTPNtfyServDB>().smtpServer.View(), "mail.example.org");
  EXPECT_EQ(First<CAlertNPAGENtfyServDB>().modemId, own);
  EXPECT_EQ(First<CAlertNPAGENtfyServDB>().dialPrefix.View(), "ATDT") << "which belongs to the modem chosen";
  EXPECT_TRUE(First<CAlertAPAGENtfyServDB>().modemId.IsNull());
  EXPECT_TRUE(First<CAlertAPAGENtfyServDB>().providerPhone.Empty());
  EXPECT_EQ(First<CAlertAPAGENtfyServDB>().maxTextLength, 99u) << "no value of the laboratory";
  EXPECT_EQ(First<CAlertUSR_SNMPDB>().community.View(), "north");
  EXPECT_EQ(Settings(), json::parse(R"({"siteName": "South", "ports": {"COM1": "", "COM2": "/dev/ttyUSB7"},
                                        "smtpPort": 25, "mailTls": "verified"})"));
}

/// Writing such settings again would take more stack than there is.
TEST_F(LaboratoryTest, SettingsThatAreNestedWithoutEndGiveWayAndComeBackAsTheyWere) {
  std::string nested;
  for (int level = 0; level < 200'000; ++level) nested += "{\"a\":";
  WriteFile("alertserver.json", nested + "1" + std::string(200'000, '}'));
  const std::string before = Everything();
  laboratory_.Start();
  EXPECT_THAT(Settings(), testing::SizeIs(3));
  EXPECT_THAT(laboratory_.Stop(), IsEmpty());
  EXPECT_TRUE(Everything() == before);
}

TEST_F(LaboratoryTest, AModemThatAnotherServiceUsesByThenIsKept) {
  laboratory_.Start();
  const auto modem = First<CAlertSERV_MODEMDB>();
  EditFirst<CAlertMCINtfyServDB>([&](auto& mail) { mail.modemId = modem.guid; });
  EXPECT_THAT(laboratory_.Stop(), ElementsAre(HasSubstr("Laboratory modem")));
  EXPECT_EQ(First<CAlertSERV_MODEMDB>().guid, modem.guid);
  laboratory_.Start();
  EXPECT_EQ(First<CAlertNPAGENtfyServDB>().modemName.View(), "Laboratory modem (2)") << "names are unique";
  laboratory_.Stop();
}

TEST_F(LaboratoryTest, WhatCannotStartSaysWhyAndChangesNothing) {
  Laboratory hasty(std::chrono::milliseconds(300));
  const std::string before = Everything();
  const auto start = [&] { return Complaint([&] { hasty.Start(); }); };
  setenv("ALERTING_LABORATORY", "/nowhere/alertlab", 1);
  EXPECT_THAT(start(), HasSubstr("not installed: \"/nowhere/alertlab\" is not there"));
  Pretend("echo no more ports >&2; exit 1");
  EXPECT_THAT(start(), HasSubstr("ended at once: no more ports"));
  Pretend("exec sleep 100");
  EXPECT_THAT(start(), HasSubstr("did not open its devices within"));
  setenv("ALERTING_LABORATORY", ALERTLAB, 1);
  WriteFile("elsewhere.json", "{}");
  ASSERT_EQ(symlink("elsewhere.json", (data_ + "/alertserver.json").c_str()), 0);
  EXPECT_THAT(start(), HasSubstr("alertserver.json is a symbolic link"));
  unlink((data_ + "/alertserver.json").c_str());
  std::filesystem::remove_all(data_ + "/open");
  WriteFile("open", "no directory: nothing can be marked there");
  EXPECT_THAT(start(), HasSubstr("cannot be changed for the laboratory: cannot"));
  EditFirst<CAlert_SRV_CFGDB>([](auto& manager) { manager.managerName.Assign("ELSEWHERE"); });
  unlink((data_ + "/open").c_str());
  EXPECT_THAT(start(), HasSubstr("is no alert manager of the site"));
  EditFirst<CAlert_SRV_CFGDB>([](auto& manager) { manager.managerName.Assign(platform::HostName()); });
  EXPECT_FALSE(hasty.Runs());
  EXPECT_FALSE(IsPointed());
  EXPECT_TRUE(Everything() == before);
}

TEST_F(LaboratoryTest, ServicesOfOtherMachinesAreLeftAloneAndValuesInUseAreNamed) {
  EditFirst<CAlertNPAGENtfyServDB>([](auto& pager) { pager.modemId = platform::GUID::Generate(); });
  EditFirst<CAlertSMTPNtfyServDB>([](auto& mail) { mail.smtpServer.Assign("mail.example.org"); });
  EXPECT_EQ(Run({"manager", "add", "OTHER"}).code, 0);
  EXPECT_EQ(Run({"service", "disable", "Internet Mail"}).code, 0);
  EXPECT_EQ(Run({"service", "enable", "Internet Mail", "--manager", "OTHER"}).code, 0);
  const site::LaboratoryPlan plan = site::PlanLaboratory();
  EXPECT_THAT(plan.left_out, ElementsAre("\"Internet Mail\""));
  EXPECT_THAT(plan.replaced, ElementsAre("the modem of \"Numeric Pager\""));
}

TEST_F(LaboratoryTest, OneAtATimeInADataDirectory) {
  laboratory_.Start();
  Laboratory second;
  EXPECT_THAT(Complaint([&] { second.Start(); }),
              HasSubstr("another console runs a laboratory on this site"));
  EXPECT_THAT(Complaint([] { site::PutBackLeftOver(); }), HasSubstr("stop it there first"));
  EXPECT_EQ(First<CAlertSMTPNtfyServDB>().smtpServer.View(), "127.0.0.1");
  EXPECT_THAT(laboratory_.Stop(), IsEmpty());
  second.Start();
  EXPECT_THAT(second.Stop(), IsEmpty());
}

TEST_F(LaboratoryTest, ADamagedMemoryTouchesNothing) {
  laboratory_.Start();
  json remembered = json::parse(ReadFile("laboratory.json"));
  laboratory_.Stop();
  const std::string before = Everything();
  remembered["changed"][0]["fields"][0]["name"] = "defaultBody";
  for (const std::string& text : {std::string("{}"), std::string("no JSON"), remembered.dump()}) {
    WriteFile("laboratory.json", text);
    EXPECT_THAT(Complaint([] { site::PutBackLeftOver(); }), HasSubstr("laboratory.json")) << text;
    EXPECT_TRUE(IsPointed()) << "for a person to look at";
    EXPECT_TRUE(Everything() == before);
  }
}

/// A console: run by the test below on its site, until it is killed.
TEST(Console, DISABLED_RunsALaboratory) {
  Laboratory laboratory;
  laboratory.Start();
  std::printf("process %d\n", laboratory.Process()->Process());
  std::fflush(stdout);
  pause();
}

TEST_F(LaboratoryTest, AKilledConsoleTakesItsLaboratoryAlongAndTheNextOnePutsBack) {
  const std::string before = Everything();
  const std::string self = std::filesystem::read_symlink("/proc/self/exe");
  FILE* console = popen(
      ("exec " + Quoted(self) + " --gtest_also_run_disabled_tests --gtest_filter=Console.*").c_str(), "r");
  int process = 0;
  char line[200];
  while (process == 0 && fgets(line, sizeof line, console) != nullptr) sscanf(line, "process %d", &process);
  ASSERT_NE(process, 0);
  EXPECT_THAT(Complaint([] { site::PutBackLeftOver(); }), HasSubstr("another console"));
  std::string status;
  std::ifstream("/proc/" + std::to_string(process) + "/stat") >> status >> status >> status >> status;
  kill(std::stoi(status), SIGKILL);  // its parent: the console
  pclose(console);
  for (int looks = 0; IsThere(process) && looks < 500; ++looks) usleep(10'000);
  EXPECT_FALSE(IsThere(process));
  EXPECT_TRUE(IsPointed());
  EXPECT_THAT(site::PutBackLeftOver(), IsEmpty());
  EXPECT_TRUE(Everything() == before);
}

class RehearsalTest : public LaboratoryTest {
 protected:
  /// Waits for something of that kind to arrive.
  site::Json Arrival(const std::string& device, const std::string& what) {
    for (int looks = 0; looks < 100; ++looks) {
      pollfd wanted{laboratory_.Process()->Arrivals(), POLLIN, 0};
      poll(&wanted, 1, 100);
      for (site::Json& arrival : laboratory_.Process()->TakeArrivals())
        if (arrival["device"] == device && arrival["what"] == what) return arrival;
    }
    ADD_FAILURE() << "no " << what << " arrived at the " << device;
    return site::Json::object();
  }
  std::string Verdict(Arguments arguments) {
    arguments.push_back("--json");
    return json::parse(Run(arguments).out, nullptr, false).value("verdict", "none");
  }
};

TEST_F(RehearsalTest, TestsOfTheFirstServicesArriveThroughTheAlertServer) {
  EXPECT_EQ(Run({"user", "add", "Ann"}).code, 0);
  for (const auto& [service, address] :
       std::map<std::string, std::string>{{"Internet Mail", "ann@example.org"},
                                          {"Alphanumeric Pager", "5550177"},
                                          {"Numeric Pager", "5550142"}})
    EXPECT_EQ(Run({"entry", "set", "Ann", service, address}).code, 0);
  laboratory_.Start();
  EXPECT_EQ(Verdict({"entry", "test", "Ann", "Internet Mail", "--subject", "only a test"}), "delivered");
  const site::Json mail = Arrival("mail", "message");
  EXPECT_THAT(mail.dump(), AllOf(HasSubstr("ann@example.org"), HasSubstr("Subject: only a test")));
  EXPECT_EQ(Verdict({"service", "test", "SNMP Trap", "--message", "down"}), "delivered");
  EXPECT_THAT(Arrival("traps", "inform").dump(), HasSubstr("down"));
  EXPECT_EQ(Verdict({"entry", "test", "Ann", "Alphanumeric Pager", "--message", "call home"}), "delivered");
  EXPECT_EQ(Arrival("pager", "page")["text"], "call home");
  EXPECT_EQ(Verdict({"entry", "test", "Ann", "Numeric Pager", "--message", "911"}), "sent");
  EXPECT_EQ(Arrival("pager", "digits")["digits"], "911");
  EXPECT_EQ(Verdict({"service", "test", "Generic Port Service", "--message", "paper"}), "sent");
  EXPECT_THAT(Arrival("printer", "printed")["text"].get<std::string>(), HasSubstr("paper"));
  laboratory_.Process()->Ask("fault mail=recipient-refused");
  EXPECT_EQ(Verdict({"entry", "test", "Ann", "Internet Mail"}), "refused") << "faults take effect";
  EXPECT_THAT(laboratory_.Stop(), IsEmpty());
}

}  // namespace
