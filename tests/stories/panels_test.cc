// SPDX-License-Identifier: MIT
// The panels that a console puts into its wizards and sheets.
#include <cstddef>

#include "alerting/alert_page.h"
#include "tests/stories/service_sheet_fixture.h"

namespace stories {
namespace {

using namespace alerting;  // NOLINT
using alertstore::ALERTRESPREC;

constexpr char kWizard[] = "New";
constexpr std::uint32_t kBackAndFinish = ui::kWizardBack | ui::kWizardFinish;

/// A console's window around a panel, which is asked to save first.
class Host : public ui::PropertySheet {
 public:
  explicit Host(bool wizard) : PropertySheet(kWizard, nullptr) {
    if (wizard) SetWizardMode();
  }
  bool UpdateData(bool save) override { return ++saves, PropertySheet::UpdateData(save) && answer; }

  int saves = 0;
  bool answer = true;
};

class PanelsTest : public ServiceSheetsTest {
 protected:
  PanelsTest() {
    std::memset(&response_, 0x5A, sizeof(response_));
    response_.message.Assign("");
    response_.subject.Assign("");
  }

  int Index() { return *TheServices().FindById(ServiceId()); }
  std::unique_ptr<CAlertPage> ForResponse(Host& host, bool adding, std::uint32_t buttons = 0) {
    CAlertPage* panel = adding ? ResponseGetAddServicePanel(Index(), 0, &response_, buttons, &host)
                               : ResponseGetPropertyPanel(Index(), 0, &response_, &host);
    host.AddPage(*panel);
    return std::unique_ptr<CAlertPage>(panel);
  }
  int Run(Host& host, desktops::Script::Story story) {
    Script().ExpectWindow(kWizard, std::move(story));
    return host.RunModal();
  }

  ALERTRESPREC response_;
  const platform::GUID user_ = test_support::MakeUser("Ann Operator");
};

struct ResponseRow {
  std::uint32_t code;
  const char *field, *typed;
  std::size_t offset, width;  ///< of what was typed
};

constexpr std::size_t kMessageAt = 1514, kSubjectAt = 3563, kTypeAt = 3985;
constexpr char kPanelMessage[] = "&Message:";

TEST_F(PanelsTest, EachTypesResponseIsWrittenWhereTheRecordHoldsIt) {
  const ResponseRow rows[] = {{kTypeMhs, kBody, "disk full", kMessageAt, 2049},
                              {kTypeMci, kSubject, "disk", kSubjectAt, 261},
                              {kTypeSnmp, kPanelMessage, "disk full", kMessageAt, 2049},
                              {kTypeTts, kPanelMessage, "disk full", kMessageAt, 2049},
                              {kTypeAlpha, kPanelMessage, "disk full", kMessageAt, 2049},
                              {kTypeGeneric, kPanelMessage, "disk full", kMessageAt, 2049},
                              {kTypeNumeric, kPanelMessage, "*911*", kMessageAt, 2049},
                              {kTypeWave, "&Wave file:", "\\\\a\\b.wav", kSubjectAt, 261},
                              {kTypeProgram, "&Program:", "\\\\a\\b.exe", kSubjectAt, 261}};
  for (const ResponseRow& row : rows) {
    SCOPED_TRACE(row.code);
    Seed(row.code);
    const ALERTRESPREC before = response_;
    Host host(true);
    const auto panel = ForResponse(host, true, kBackAndFinish);
    EXPECT_EQ(ResponseUpdatePanelData(panel.get()), 0u) << "never shown";
    EXPECT_TRUE(test_support::BytesOf(response_) == test_support::BytesOf(before));
    EXPECT_EQ(Run(host,
                  [&](Person& p) {
                    p.Type(row.field, row.typed);
                    p.Press("Finish");
                  }),
              ui::kOk);
    EXPECT_EQ(host.saves, 1);
    EXPECT_TRUE(test_support::BytesOf(response_) == test_support::BytesOf(before))
        << "written when asked for";
    EXPECT_EQ(ResponseUpdatePanelData(panel.get()), 1u);
    std::string bytes = test_support::BytesOf(response_);
    EXPECT_STREQ(bytes.c_str() + row.offset, row.typed);
    const std::size_t end = row.offset + std::strlen(row.typed);
    EXPECT_EQ(bytes.substr(end, row.offset + row.width - end), std::string(row.offset + row.width - end, 0));
    EXPECT_EQ(bytes[kTypeAt], static_cast<char>(row.code + 1));
    EXPECT_EQ(bytes[kTypeAt + 1], 0);
    EXPECT_EQ(bytes[0], 0x5A);
    response_ = before;
  }
}

TEST_F(PanelsTest, AFileMustBeNamedBeforeTheWizardFinishes) {
  for (const std::uint32_t code : {kTypeWave, kTypeProgram}) {
    Seed(code);
    Host host(true);
    const auto panel = ForResponse(host, true, kBackAndFinish);
    const char* field = code == kTypeWave ? "&Wave file:" : "&Program:";
    Run(host, [&](Person& p) {
      EXPECT_TRUE(p.IsEnabled("< &Back"));
      for (const char* name : {"", "a", ""}) {
        p.Type(field, name);
        EXPECT_EQ(p.IsEnabled("Finish"), *name != '\0');
      }
      p.Press("Cancel");
    });
  }
}

TEST_F(PanelsTest, AnEmptyResponseBeginsWithTheDefaultMessageWhichIsToldUnlessItIsNew) {
  Seed(kTypeSmtp);
  Store<alertstore::ALRTSMTPSERVICEREC>([](auto& record) {
    record.defaultBody.Assign("%s is down");
    record.bodyKeywords[0].id = 2;
    record.defaultSubject.Assign("down");
    record.defaultPriority = 1;
  });
  Service().ReloadRecords();
  for (const bool adding : {true, false}) {
    Host host(adding);
    const auto panel = ForResponse(host, adding, kBackAndFinish);
    if (!adding) Script().ExpectMessage("No message in the response.  Default message will be inserted.");
    Run(host, [&](Person& p) {
      EXPECT_EQ(p.Text(kBody), "<Workstation> is down");
      EXPECT_EQ(p.Text(kSubject), "down");
      EXPECT_EQ(p.Text("P&riority:"), "Normal");
      p.Press(adding ? "Finish" : "OK");
    });
    EXPECT_EQ(ResponseUpdatePropertyPanelData(panel.get()), 1u);
    EXPECT_EQ(response_.message.View(), "%s is down");
    EXPECT_EQ(response_.messageKeywords[0], 2);
    EXPECT_EQ(response_.priority, 1);
    response_.message.Assign("");
    response_.subject.Assign("");
  }
}

TEST_F(PanelsTest, APathThatOthersCannotFollowIsAskedAboutAndTheHostMayRefuse) {
  Seed(kTypeWave);
  Library().netpath.operation13 = 0;
  Library().netpath.resolved = "/sounds/b.wav";
  Host host(false);
  const auto panel = ForResponse(host, false);
  Script().ExpectWindow(kWizard, [&](Person& p) {
    p.Type("&Wave file:", "b.wav");
    p.Press("OK");
    host.answer = false;
    p.Press("OK");
    host.answer = true;
    p.Press("OK");
  });
  const std::string question =
      "Unable to create a UNC universal pathname to the file you selected.\nThe product may not operate "
      "correctly as a result.\nRefer to the implementation guide for additional information.\nDo you wish to "
      "use the non-UNC path anyway?";
  Script().ExpectMessage(question, ui::Answer::kNo);
  Script().ExpectMessage(question, ui::Answer::kYes);
  EXPECT_EQ(host.RunModal(), ui::kOk);
  EXPECT_EQ(ResponseUpdatePropertyPanelData(panel.get()), 1u);
  EXPECT_EQ(response_.subject.View(), "/sounds/b.wav");
  EXPECT_THAT(Script().titles, testing::Each("Alerting")) << "in whatever window the panel stands";
}

struct UserRow {
  std::uint32_t code;
  const char *field, *typed;
};

TEST_F(PanelsTest, AUsersAddressIsAskedForAndStoredWhenTheWizardSaysSo) {
  const UserRow rows[] = {{kTypeMhs, "Email A&ddress:", "ann@post"},
                          {kTypeSmtp, "Email A&ddress:", "ann@x"},
                          {kTypeMci, "Email &Address:", "ann@mci"},
                          {kTypeAlpha, "&PIN number:", "12-34"},
                          {kTypeNumeric, "&Phone number:", "5550100"}};
  for (const UserRow& row : rows) {
    SCOPED_TRACE(row.code);
    Seed(row.code);
    Host host(true);
    std::unique_ptr<CAlertPage> panel(UserGetAddServicePanel(Index(), 0, user_, kBackAndFinish, &host));
    host.AddPage(*panel);
    EXPECT_EQ(UserUpdatePanelData(panel.get()), 0u) << "never shown";
    const bool pager = row.code == kTypeAlpha || row.code == kTypeNumeric;
    Run(host, [&](Person& p) {
      EXPECT_EQ(p.Text("User name:"), "Ann Operator");
      EXPECT_EQ(p.Text("Notification service:"), kSheet);
      EXPECT_FALSE(p.IsEnabled("Finish"));
      p.Type(row.field, pager ? std::string("x") + row.typed : row.typed);
      if (row.code == kTypeMci) {
        EXPECT_FALSE(p.IsEnabled("E&MS Address:"));
        p.Check("Enable EM&S", true);
        p.Type("E&MS Address:", "ems");
      }
      p.Press("Finish");
    });
    EXPECT_THAT(Engine().Writes(), IsEmpty());
    EXPECT_EQ(UserUpdatePanelData(panel.get()), 1u);
    UserEntry entry;
    ASSERT_TRUE(test_support::Users(Service()).GetUserEntry(user_, entry));
    EXPECT_THAT((std::vector{entry.name, entry.address}), ElementsAre("Ann Operator", row.typed));
    EXPECT_EQ(entry.enabled, 1u);
  }
  std::uint32_t ems = 0;
  std::string address;
  Seed(kTypeMci);
  auto& mci = dynamic_cast<CNtfyServiceMailBase&>(Service());
  ASSERT_TRUE(mci.GetUserExtra(ems, address, user_));
  EXPECT_EQ(std::to_string(ems) + address, "1ems");
}

TEST_F(PanelsTest, AUsersSheetKeepsWhatWasAppliedAndClosesOnAFailedWrite) {
  Seed(kTypeSmtp);
  Script().ExpectWindow("Service Properties", [](Person& p) {
    p.Type("Email A&ddress:", "ann@x");
    p.Press("&Apply");
    p.Type("Email A&ddress:", "bob@x");
    p.Press("Cancel");
  });
  EXPECT_EQ(UserServicePropertySheet(nullptr, Index(), user_), ui::kCancel);
  UserEntry entry;
  test_support::Users(Service()).GetUserEntry(user_, entry);
  EXPECT_EQ(entry.address, "ann@x");
  Engine().FailAll(UserStore<alertstore::CAlertUSR_SMTPDB>().Schema().file, test_support::StoreOp::kUpdate);
  Script().ExpectWindow("Service Properties", [](Person& p) { p.Press("OK"); });
  Script().ExpectMessage("Unable to update record in the service-specific user database.");
  EXPECT_EQ(UserServicePropertySheet(nullptr, Index(), user_), ui::kOk);
  Engine().FailNone();
  Seed(kTypeWave);
  Script().ExpectWindow("Service Properties", [](Person& p) { p.Press("Cancel"); });
  EXPECT_EQ(UserServicePropertySheet(nullptr, Index(), user_), ui::kCancel) << "a sheet without pages";
  EXPECT_EQ(UserGetAddServicePanel(Index(), 0, user_, 0, nullptr), nullptr);
}

}  // namespace
}  // namespace stories
