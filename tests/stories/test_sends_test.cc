// SPDX-License-Identifier: MIT
// Test sends: from the dialog to what the alert server is handed, and the report.
#include <thread>

#include "alerting/testing/sends.h"
#include "companions/agentui/corrections.h"
#include "companions/alertrecords/test_response.h"
#include "companions/alertstore/computers.h"
#include "tests/stories/service_sheet_fixture.h"

namespace stories {
namespace {

using namespace alerting;  // NOLINT
using alertstore::ALERTRESPREC;

constexpr char kRecipient[] = "&Alert Recipient:";
constexpr char kSiteTest[] = "Site Alerting Service Test:  Site service";
constexpr char kSiteTestNarrow[] = "Site Alerting Service Test: Site service";
constexpr char kUserTest[] = "User Alerting Service Test: Site service";

class TestSendsTest : public ServiceSheetsTest {
 protected:
  /// A service whose type has its test response, with one user, on a site with one computer.
  void SeedAll(std::uint32_t code) {
    Seed(code);
    ALERTRESPREC response{};
    response.responseId = alertrecords::TestResponseId(RecordTypeOf(code));
    response.message.Assign("as it was");
    response.subject.Assign("as it was");
    response.priority = 9;
    ResponseStore().DBAlertRecDelete(response.responseId);
    EXPECT_EQ(ResponseStore().AddWithIdentity(response), alertstore::kOk);
    if (Service().IsUserService())
      test_support::Users(Service()).SaveUserEntry(user_, {"Ann Operator", "555", 1});
    else
      alertstore::AddComputer(computer_, "DESK");
  }
  ALERTRESPREC Stored() {
    const platform::GUID id = Service().TestResponse();
    ALERTRESPREC response{};
    response.responseId = id;
    EXPECT_EQ(ResponseStore().DBAlertRecRetrieve(id, response), alertstore::kOk);
    return response;
  }
  /// Presses Test on the service's sheet; the test's own window comes next.
  void OpenTest() {
    Expect([](Person& p) {
      p.Press("&Test");
      p.Press("Cancel");
    });
  }
  test_support::FakeAgentUi& AgentUi() { return Library().agentui; }

  const platform::GUID user_ = test_support::MakeUser("Ann Operator"), computer_ = platform::GUID::Generate();
};

TEST_F(TestSendsTest, AMailGoesToTheChosenUserAndItsRequestNamesTheRecord) {
  SeedAll(kTypeSmtp);
  OpenTest();
  Script().ExpectWindow(kSiteTest, [](Person& p) {
    EXPECT_FALSE(p.IsEnabled("OK"));
    p.PressBeside(kRecipient, "...");
    EXPECT_FALSE(p.IsEnabled("OK")) << "none was chosen";
    p.PressBeside(kRecipient, "...");
    EXPECT_EQ(p.Text(kRecipient), "Ann Operator");
    p.Type("Message &Subject:", "Subject");
    p.Type("Message &Body:", "Body");
    p.Choose("&Priority:", "Normal");
    p.Press("OK");
  });
  Script().ExpectWindow("Select user", [](Person& p) {
    EXPECT_FALSE(p.IsEnabled("OK"));
    p.Press("Cancel");
  });
  Script().ExpectWindow("Select user", [](Person& p) {
    p.Choose("&Users of this service:", "Ann Operator");
    p.Press("OK");
  });
  Library().dbconfig.polls_until_complete = 2;
  Open();
  const ALERTRESPREC stored = Stored();
  EXPECT_EQ(stored.message.View(), "Body");
  EXPECT_EQ(stored.subject.View(), "Subject");
  EXPECT_EQ(stored.userName.View(), "Ann Operator");
  EXPECT_EQ(stored.priority, 1);
  EXPECT_EQ(stored.userId, user_);
  EXPECT_EQ(stored.serviceId, ServiceId());
  EXPECT_THAT(AgentUi().recorded, ElementsAre("register", "send"));
  EXPECT_TRUE(test_support::BytesOf(AgentUi().sent) == test_support::BytesOf(stored));
  EXPECT_EQ(AgentUi().request.substr(0, 12), std::string("\x14\0\0\0\0\0\0\0\0\0\0\0", 12));
  EXPECT_EQ(AgentUi().sent_text, "");
  EXPECT_THAT(Script().sleeps, ElementsAre(1000, 1000, 4000, 1000, 1000));
  EXPECT_EQ(Library().dbconfig.files_written, 2) << "by the test, and by the sheet that closed";
}

struct WaitingWindow : platform::ui::Window {
  void ShowProgress(const std::string& what) override { said.push_back(what); }
  std::vector<std::string> said;
};

TEST_F(TestSendsTest, TheWaitSaysWhatItIsForAndEnds) {
  SeedAll(kTypeSnmp);
  WaitingWindow window;
  EXPECT_TRUE(Service().SendTestAlert({}, "trap", nullptr, 0, &window));
  EXPECT_THAT(window.said, ElementsAre("Waiting for the configuration...",
                                       "Waiting for the alert managers...", "Handing the test over...", ""));
}

TEST_F(TestSendsTest, AReportIsShownOnceEvenWhenTheDialogIsGoneAndItComesOnAnotherThread) {
  SeedAll(kTypeSnmp);
  OpenTest();
  Script().ExpectWindow(kSiteTest, Fill({{"&Message:", "trap"}}));
  Open();
  EXPECT_EQ(Stored().message.View(), "trap");
  EXPECT_EQ(Stored().subject.View(), "as it was") << "a message alone";
  EXPECT_EQ(Stored().priority, 9);
  EXPECT_TRUE(Stored().userId.IsNull());
  EXPECT_THAT(Script().sleeps, ElementsAre(8000, 1000, 1000));
  AgentUi().report(7);
  std::thread([&] { AgentUi().report(8); }).join();
  Expect([](Person& p) { p.Press("Cancel"); });  // posted work runs while a window is open
  Open();
  EXPECT_THAT(AgentUi().recorded, ElementsAre("register", "send", "report 7", "report 8"));
  struct : agentui::Corrections {
    bool CanOpen(const agentui::Correction&) const override { return false; }
    bool Open(const agentui::Correction&) override { return false; }
  } host;
  agentui::RegisterCorrections(&host);
  ForgetTests();
  EXPECT_EQ(AgentUi().report, nullptr) << "a library that goes takes its callback along";
  EXPECT_EQ(agentui::RegisteredCorrections(), nullptr) << "and its windows";
}

TEST_F(TestSendsTest, AFileIsTestedOnAComputer) {
  SeedAll(kTypeProgram);
  OpenTest();
  Library().netpath.operation13 = 0;
  Library().netpath.resolved = "/bin/siren";
  Script().ExpectWindow(kSiteTestNarrow, [](Person& p) {
    p.Type("&Program:", "siren");
    EXPECT_FALSE(p.IsEnabled("OK"));
    p.PressBeside("&Target Machine:", "...");
    EXPECT_EQ(p.Text("&Target Machine:"), "DESK");
    p.Type("&Command Line:", "/loud");
    p.Press("OK");
    p.Press("OK");
  });
  Script().ExpectWindow("Choose Computer", [](Person& p) { p.Press("OK"); });
  const std::string question =
      "Unable to create a UNC universal pathname to the file you selected.\nThe product may not operate "
      "correctly as a result.\nRefer to the implementation guide for additional information.\nDo you wish to "
      "use the non-UNC path anyway?";
  Script().ExpectMessage(question, platform::ui::Answer::kNo);
  Script().ExpectMessage(question, platform::ui::Answer::kYes);
  Open();
  EXPECT_EQ(Stored().subject.View(), "/bin/siren");
  EXPECT_EQ(Stored().message.View(), "/loud");
  EXPECT_EQ(Stored().userId, computer_);
  EXPECT_THAT(AgentUi().recorded, ElementsAre("/bin/siren", "register", "send", "freed"));

  SeedAll(kTypeWave);
  OpenTest();
  Library().netpath.resolved = "\\\\desk\\a.wav";
  Script().ExpectWindow(kSiteTestNarrow, [&](Person& p) {
    p.Type("&Wave File:", "a.wav");
    p.PressBeside("&Target Workstation:", "...");
    ResponseStore().DBAlertRecDelete(Service().TestResponse());
    p.Press("OK");
  });
  Script().ExpectWindow("Choose Computer", [](Person& p) { p.Press("OK"); });
  Script().ExpectMessage("Unable to find record in the responses database.");
  Open();
}

TEST_F(TestSendsTest, SpeechNeedsAWorkstationAndWords) {
  SeedAll(kTypeTts);
  OpenTest();
  Script().ExpectWindow(kSiteTest, [&](Person& p) {
    p.PressBeside("&Target Workstation:", "...");
    p.Type("&Message:", "");
    EXPECT_FALSE(p.IsEnabled("OK"));
    p.Type("&Message:", "fire");
    Engine().FailAll(ResponseStore().Schema().file, test_support::StoreOp::kUpdate);
    p.Press("OK");
    Engine().FailNone();
    EXPECT_EQ(p.Text("&Message:"), "fire") << "it stays until the test was sent";
    p.Press("OK");
  });
  Script().ExpectWindow("Choose Computer", [](Person& p) { p.Press("OK"); });
  Script().ExpectMessage("Unable to update record in the responses database.");
  Open();
  EXPECT_EQ(Stored().userName.View(), "DESK");
  EXPECT_EQ(Stored().message.View(), "fire");
}

TEST_F(TestSendsTest, AUserIsTestedWithoutChoosingOne) {
  const struct {
    std::uint32_t code;
    const char *field, *typed, *sent;
  } rows[] = {{kTypeMci, "Message &Body:", "mail", "mail"},
              {kTypeAlpha, "&Message Body:", "page", "page"},
              {kTypeNumeric, "&Message Body:", "9x1", "91"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.code);
    SeedAll(row.code);
    Script().ExpectWindow(kUserTest, Fill({{row.field, row.typed}}));
    const int index = *TheServices().FindById(ServiceId());
    EXPECT_EQ(UserServiceTestDialog(nullptr, index, user_), 1u);
    EXPECT_EQ(Stored().message.View(), row.sent);
    EXPECT_EQ(Stored().userId, user_);
  }
  SeedAll(kTypeWave);
  EXPECT_EQ(UserServiceTestDialog(nullptr, *TheServices().FindById(ServiceId()), user_), 0u);
}

}  // namespace
}  // namespace stories
