// SPDX-License-Identifier: MIT
#include <filesystem>

#include "alerting/alerting.h"
#include "companions/dbconfig/dbconfig.h"
#include "platform/base/paths.h"
#include "tests/stories/story_test.h"
#include "tests/support/service_fixture.h"

namespace stories {
namespace {

using desktops::Person;
using platform::ui::Answer;
using platform::ui::kCancel;
using platform::ui::kOk;
using test_support::StoreOp;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr char kSheet[] = "Site service";
constexpr char kEnable[] = "&Enable Service";
constexpr char kMessageTab[] = "Default Message";
constexpr char kLogin[] = "&Login ID:";
constexpr char kPassword[] = "&Password:";
constexpr char kVerify[] = "&Verify Password:";
constexpr char kDirectory[] = "&Server/Volume path (MHS Directory):";
constexpr char kPhone[] = "P&hone #:";
constexpr char kDelay[] = "&Delay:";
constexpr char kLength[] = "Te&xt Length:";
constexpr char kSubject[] = "Mail Message &Subject:";
constexpr char kBody[] = "Mail &Message Body:";
constexpr char kHalfBody[] = "&Edit Default Message:";
constexpr char kNumericBody[] = "&Edit Default Message";
constexpr char kFields[] = "<< &Fields...";
constexpr char kTestLater[] = "Test sends are not available in this version.";
constexpr char kApplyFirst[] =
    "Do you want to apply changes to this service before running the test?  If yes, the changes will be "
    "saved.  If no, the test will be run using the old values.";

/// What a person enters in a field and where that is stored. Width 0: as a number.
struct Entry {
  std::string label, typed;
  std::size_t offset, width;
};

struct SheetRow {
  std::uint32_t code;
  std::vector<Entry> general, message;
  std::size_t body_keywords = 0;
  Labels buttons = {};  ///< further controls with help
};

using Entries = std::vector<Entry>;

Entries Login(std::size_t offset, const std::string& label = kLogin) {
  return {{label, "alerts", offset, 49},
          {kPassword, "secret", offset + 49, 49},
          {kVerify, "secret", offset + 49, 49}};
}

Entries DialedLogin() {
  Entries entries = Login(42);
  entries.insert(entries.begin(), {kPhone, "(555)012-3,4", 16, 26});
  return entries;
}

Entries MhsLogin() {
  Entries entries = Login(277);
  entries.insert(entries.begin(), {kDirectory, "/mail/post", 16, 261});
  return entries;
}

Entries Mail(std::size_t body, std::size_t subject_width) {
  return {{kSubject, "Alert", body + 1025, subject_width}, {kBody, "See to it at <Time>", body, 1025}};
}

Entries Body(std::size_t offset, std::size_t width, const char* label = kHalfBody) {
  return {{label, "See to it at <Time>", offset, width}};
}

const std::vector<SheetRow>& Rows() {
  using namespace alerting;  // NOLINT
  static const std::vector<SheetRow> rows = {
      {kTypeMhs, MhsLogin(), Mail(375, 257), 1661, {"..."}},
      {kTypeSnmp, {}, Body(2130, 1025), 3416, {"A&dd...", "&SNMP Destinations:"}},
      {kTypeMci, DialedLogin(), Mail(140, 257), 1507},
      {kTypeCompuServe, DialedLogin(), Mail(140, 41), 1291},
      {kTypeSmtp, {{"&SMTP Server:", "mail.example.org", 16, 256}}, Mail(370, 257), 1656},
      {kTypeMapi, Login(16, "&Login ID or Profile Name:"), Mail(114, 257), 1400},
      {kTypeVim, Login(16), Mail(114, 257), 1400},
      {kTypeWave, {}, {}},
      {kTypeTts, {}, Body(16, 1025), 1242},
      {kTypeAlpha,
       {{"&Company:", "Page One", 2326, 65},
        {"&Location:", "Springfield", 16, 2049},
        {kLength, "80", 2322, 0},
        {"P&hone:", "(555)012", 2391, 26}},
       Body(2065, 257),
       2498,
       {"&Set service provider"}},
      {kTypeNumeric, {{kDelay, "12", 2065, 0}}, {{kNumericBody, "*911#", 16, 2049}}},
      {kTypeGeneric, {}, Body(16, 1025), 1041},
      {kTypeProgram, {}, {}},
  };
  return rows;
}

class ServiceSheetsTest : public StoryTest {
 protected:
  void Seed(std::uint32_t code) {
    code_ = code;
    id_ = test_support::SeedService(code, kSheet);
    if (code == alerting::kTypeAlpha)
      Store<alertstore::ALRTAPAGESERVICEREC>([](auto& record) { record.maxTextLength = 100; });
    alerting::TheServices().RemoveAll();
    Service();  // a type that dials out gets its backup record
    Engine().Forget();
  }
  alerting::CNtfyService& Service() { return *test_support::Find(id_); }
  test_support::FakeNetPath& NetPath() { return library_.netpath; }
  test_support::FailingEngine& Engine() { return *library_.engine; }
  const std::string& Directory() const { return library_.Directory(); }

  alertstore::ALRTNTFYSERV Common() const { return test_support::StoredCommon(id_); }
  bool HasRecord() const { return code_ != alerting::kTypeProgram; }
  std::string Bytes() const {
    return HasRecord() ? test_support::StoredSpecific(code_, Common().specificRecordId) : "";
  }
  /// Changes the stored record, as another console would.
  template <class Record, class Edit>
  void Store(Edit&& edit) {
    Record record;
    std::memcpy(&record, Bytes().data(), sizeof(record));
    edit(record);
    EXPECT_EQ(alerting::ServiceStore().SpecificStore<Record>()->DBAlertRecUpdate(record), alertstore::kOk);
  }
  std::string SpecificFile() const {
    return test_support::WithRecordOf(code_, []<class Record>() {
      return std::string(alerting::ServiceStore().SpecificStore<Record>()->Schema().file);
    });
  }

  void Expect(desktops::Script::Story story) { Script().ExpectWindow(kSheet, std::move(story)); }
  int Open() { return DomainServicePropertySheet(nullptr, *alerting::TheServices().FindById(id_)); }
  int Open(desktops::Script::Story story) {
    Expect(std::move(story));
    return Open();
  }

 private:
  test_support::LibraryUnderTest library_;
  platform::GUID id_{};
  std::uint32_t code_ = 0;
};

void TypeAll(Person& p, const Entries& entries) {
  for (const Entry& entry : entries) p.Type(entry.label, entry.typed);
}

/// Where two records of the same size differ first, or -1.
std::ptrdiff_t FirstDifference(const std::string& got, const std::string& wanted) {
  EXPECT_EQ(got.size(), wanted.size());
  const auto at = std::mismatch(got.begin(), got.end(), wanted.begin(), wanted.end()).first;
  return at == got.end() ? -1 : at - got.begin();
}

/// "<Time>" is stored as a placeholder and a keyword slot.
std::string StoredForm(std::string typed) {
  const std::size_t keyword = typed.find("<Time>");
  return keyword == std::string::npos ? typed : typed.replace(keyword, 6, "%s");
}

std::string WithEntries(std::string bytes, const SheetRow& row) {
  for (const Entries* entries : {&row.general, &row.message})
    for (const Entry& entry : *entries) {
      if (entry.width == 0)
        test_support::PutU32(bytes, entry.offset, static_cast<std::uint32_t>(std::stoi(entry.typed)));
      test_support::PutText(bytes, entry.offset, entry.width, StoredForm(entry.typed));
    }
  if (row.body_keywords == 0) return bytes;
  test_support::PutText(bytes, row.body_keywords, 41, "<Time>");
  test_support::PutU32(bytes, row.body_keywords + 41, 5);
  test_support::PutText(bytes, row.body_keywords + 45, 6, "%s");
  return bytes;
}

TEST_F(ServiceSheetsTest, WhatIsEnteredOnEveryPageReachesTheStoreAndTheConfigurationFile) {
  alerting::SetCompanions({});  // the real components
  for (const SheetRow& row : Rows()) {
    SCOPED_TRACE(alerting::GetServiceTypeName(row.code));
    Seed(row.code);
    const std::string expected = WithEntries(Bytes(), row);
    const int result = Open([&](Person& p) {
      TypeAll(p, row.general);
      p.Check(kEnable, false);
      p.Press("Apply");
      if (!row.message.empty()) p.SelectTab(kMessageTab);
      TypeAll(p, row.message);
      p.Press("OK");
    });
    EXPECT_EQ(result, kOk);
    EXPECT_EQ(FirstDifference(Bytes(), expected), -1) << "offset in the record";
    EXPECT_EQ(Common().enabled, 0u);
    std::string file;
    ASSERT_TRUE(platform::ReadWholeFile(Directory() + "/" + dbconfig::kConfigFileName, file));
    for (const Entries* entries : {&row.general, &row.message})
      for (const Entry& entry : *entries)
        EXPECT_THAT(file,
                    HasSubstr(entry.width > 0 ? "\"" + StoredForm(entry.typed) + "\"" : ": " + entry.typed));
  }
}

Labels TabsOf(const SheetRow& row) {
  Labels tabs{"General"};
  if (!row.message.empty()) tabs.push_back(kMessageTab);
  constexpr std::uint32_t kDialing[] = {alerting::kTypeMci, alerting::kTypeCompuServe, alerting::kTypeAlpha,
                                        alerting::kTypeNumeric, alerting::kTypeGeneric};
  if (std::find(std::begin(kDialing), std::end(kDialing), row.code) != std::end(kDialing))
    tabs.push_back("Modems");
  return tabs;
}

TEST_F(ServiceSheetsTest, CancelWritesNothingAndEveryControlHasItsHelp) {
  for (const SheetRow& row : Rows()) {
    SCOPED_TRACE(alerting::GetServiceTypeName(row.code));
    Seed(row.code);
    const int result = Open([&](Person& p) {
      EXPECT_EQ(p.Tabs(), TabsOf(row));
      TypeAll(p, row.general);
      Labels controls = row.buttons;
      controls.insert(controls.end(), {kEnable, "&Test"});
      for (const Entry& entry : row.general) controls.push_back(entry.label);
      ExpectOwnHelp(p, controls);
      if (!row.message.empty()) {
        p.SelectTab(kMessageTab);
        for (const Entry& entry : row.message) ExpectOwnHelp(p, {entry.label});
      }
      p.Press("Cancel");
    });
    EXPECT_EQ(result, kCancel);
    EXPECT_THAT(Engine().Writes(), IsEmpty());
  }
}

TEST_F(ServiceSheetsTest, AFailedUpdateIsToldAndKeepsTheSheetOpen) {
  for (const SheetRow& row : Rows()) {
    SCOPED_TRACE(alerting::GetServiceTypeName(row.code));
    Seed(row.code);
    Expect([&](Person& p) {
      p.Check(kEnable, false);
      Engine().FailAll(alerting::ServiceStore().Schema().file, StoreOp::kUpdate);
      p.Press("OK");
      EXPECT_FALSE(p.IsChecked(kEnable));
      EXPECT_THAT(Engine().Writes(), IsEmpty());
      if (HasRecord()) Engine().FailAll(SpecificFile(), StoreOp::kUpdate);
      if (HasRecord()) p.Press("OK");
      EXPECT_THAT(Engine().HeldLocks(), IsEmpty());
      Engine().FailNone();
      p.Press("OK");
    });
    Script().ExpectMessage("Unable to update the notification service database record.");
    if (HasRecord())
      Script().ExpectMessage("Unable to update the notification service-specific database record.");
    EXPECT_EQ(Open(), kOk);
    EXPECT_EQ(Common().enabled, 0u);
  }
}

TEST_F(ServiceSheetsTest, TheTestButtonFollowsTheEnableBoxAndAsksAboutPendingEdits) {
  for (const SheetRow& row : Rows()) {
    SCOPED_TRACE(alerting::GetServiceTypeName(row.code));
    Seed(row.code);
    Expect([&](Person& p) {
      p.Check(kEnable, false);
      EXPECT_FALSE(p.IsEnabled("&Test"));
      p.Check(kEnable, true);
      p.Press("&Test");
      EXPECT_THAT(Engine().Writes(), IsEmpty());
      p.Press("Cancel");
    });
    Script().ExpectMessage(kApplyFirst, Answer::kNo);
    Script().ExpectMessage(kTestLater);
    Open();
  }
}

TEST_F(ServiceSheetsTest, PasswordsThatDifferAreNotSaved) {
  for (const std::uint32_t code : {alerting::kTypeMci, alerting::kTypeCompuServe, alerting::kTypeVim}) {
    Seed(code);
    Expect([&](Person& p) {
      p.Type(kLogin, "alerts");
      p.Type(kPassword, "secret");
      p.Press("OK");
      EXPECT_EQ(p.Text(kPassword), "******");
      EXPECT_THAT(Engine().Writes(), IsEmpty());
      p.Type(kVerify, "secret");
      p.Press("OK");
    });
    Script().ExpectMessage("The two password strings are not the same.  Save aborted.");
    EXPECT_EQ(Open(), kOk);
    EXPECT_THAT(Bytes(), HasSubstr("secret"));
  }
}

TEST_F(ServiceSheetsTest, ASingleBlankIsShownAndSavedAsNothing) {
  Seed(alerting::kTypeMci);
  Store<alertstore::ALRTMCISERVICEREC>([](auto& record) {
    record.phoneNumber.Assign(" ");
    record.password.Assign(" ");
  });
  const std::string empty_texts = [&] {
    std::string bytes = Bytes();
    bytes[16] = bytes[91] = '\0';
    return bytes;
  }();
  Open([](Person& p) {
    for (const char* label : {kPhone, kPassword, kVerify}) EXPECT_EQ(p.Text(label), "") << label;
    p.Check(kEnable, false);
    p.Press("OK");
  });
  EXPECT_EQ(FirstDifference(Bytes(), empty_texts), -1);
}

TEST_F(ServiceSheetsTest, TextsThatNoPageShowsAreEmptiedWithASave) {
  const auto save = [this] {
    Open([](Person& p) {
      p.Check(kEnable, false);
      p.Press("OK");
    });
    return Bytes().find("old") == std::string::npos;
  };
  Seed(alerting::kTypeWave);
  Store<alertstore::ALRTWAVESERVICEREC>([](auto& record) {
    record.text1.Assign("old");
    record.text2.Assign("old");
  });
  EXPECT_TRUE(save());
  Seed(alerting::kTypeTts);
  Store<alertstore::ALRTTTSSERVICEREC>([](auto& record) { record.text.Assign("old"); });
  EXPECT_TRUE(save());
}

constexpr char kNoUniversalPath[] =
    "Unable to create a UNC universal pathname to the file you selected.\nThe product may not operate "
    "correctly as a "
    "result.\nRefer to the implementation guide for additional information.";
constexpr char kUseAnyway[] = "\nDo you wish to use the non-UNC path anyway?";

TEST_F(ServiceSheetsTest, AChosenPostOfficeIsShownAndStoredInUniversalForm) {
  Seed(alerting::kTypeMhs);
  NetPath().operation13 = 0;
  NetPath().resolved = "/net/post";
  const std::string deep = Directory() + "/" + std::string(200, 'd') + "/" + std::string(60, 'd');
  ASSERT_TRUE(std::filesystem::create_directories(deep));
  Script().ExpectWindow(kSheet, [&](Person& p) {
    p.PressBeside(kDirectory, "...");
    EXPECT_EQ(p.Text(kDirectory), "");
    EXPECT_FALSE(p.IsEnabled("Apply")) << "cancelled";
    p.PressBeside(kDirectory, "...");
    EXPECT_EQ(p.Text(kDirectory), "/net/post");
    NetPath().universal = "\\\\server\\post";
    p.PressBeside(kDirectory, "...");
    p.PressBeside(kDirectory, "...");
    EXPECT_EQ(p.Text(kDirectory), "\\\\server\\post") << "the one before, as there is no room for this one";
    p.Press("OK");
  });
  Script().ExpectFileDialog("Select directory for post office:", "");
  Script().ExpectFileDialog("Select directory for post office:", "/tmp");
  Script().ExpectMessage(kNoUniversalPath);
  Script().ExpectFileDialog("Select directory for post office:", "/tmp");
  Script().ExpectFileDialog("Select directory for post office:", deep);
  Script().ExpectMessage(
      "Path is invalid.\nThe product may not operate correctly as a result.\nRefer to the implementation "
      "guide "
      "for additional information.");
  EXPECT_EQ(Open(), kOk);
  EXPECT_EQ(Bytes().substr(16, 15), std::string("\\\\server\\post\0", 15));
}

TEST_F(ServiceSheetsTest, APostOfficeWithoutUniversalFormIsStoredOnlyWhenThePersonAgrees) {
  Seed(alerting::kTypeMhs);
  NetPath().operation13 = 0;
  Expect([&](Person& p) {
    p.Type(kDirectory, "/mail/post");
    p.Press("OK");
    EXPECT_EQ(p.Text(kDirectory), "/mail/post");
    EXPECT_THAT(Engine().Writes(), IsEmpty());
    p.Type(kDirectory, "/mail/post");
    p.Press("OK");
  });
  Script().ExpectMessage(std::string(kNoUniversalPath) + kUseAnyway, Answer::kNo);
  Script().ExpectMessage(std::string(kNoUniversalPath) + kUseAnyway, Answer::kYes);
  EXPECT_EQ(Open(), kOk);
  EXPECT_THAT(Bytes(), HasSubstr("/mail/post"));
}

TEST_F(ServiceSheetsTest, SystemsWithoutAFolderDialogHaveNoButtonForIt) {
  Seed(alerting::kTypeMhs);
  Desk().SetSystemMajorVersion(3);
  Open([](Person& p) {
    EXPECT_FALSE(p.IsVisible("..."));
    p.Press("Cancel");
  });
}

struct LimitRow {
  std::uint32_t code;
  const char* label;
  char character;
  std::size_t limit;
};

TEST_F(ServiceSheetsTest, FieldsHoldAsMuchAsTheirRecords) {
  using namespace alerting;  // NOLINT
  const LimitRow rows[] = {{kTypeMhs, kDirectory, 'd', 260},
                           {kTypeMci, kPhone, '1', 25},
                           {kTypeCompuServe, kLogin, 'l', 48},
                           {kTypeMapi, kPassword, 'p', 8},
                           {kTypeMapi, "&Login ID or Profile Name:", 'l', 255},
                           {kTypeVim, kVerify, 'p', 48},
                           {kTypeNumeric, kDelay, '1', 2},
                           {kTypeAlpha, "&Company:", 'c', 64},
                           {kTypeAlpha, "&Location:", 'l', 2048},
                           {kTypeAlpha, "P&hone:", '1', 25},
                           {kTypeAlpha, kLength, '1', 3}};
  for (const LimitRow& row : rows) {
    SCOPED_TRACE(row.label);
    Seed(row.code);
    Open([&](Person& p) {
      p.Paste(row.label, std::string(3000, row.character));
      EXPECT_EQ(p.Text(row.label).size(), row.limit);
      p.Press("Cancel");
    });
  }
}

TEST_F(ServiceSheetsTest, PhoneAndPagerFieldsRefuseOtherCharactersWithABeep) {
  using namespace alerting;  // NOLINT
  Seed(kTypeAlpha);
  Open([&](Person& p) {
    p.Type("P&hone:", "55a5*-(0)");
    EXPECT_EQ(p.Text("P&hone:"), "555-(0)");
    p.Press("Cancel");
  });
  Seed(kTypeCompuServe);
  Open([&](Person& p) {
    p.Type(kPhone, "5 5,x5");
    EXPECT_EQ(p.Text(kPhone), "55,5");
    p.Press("Cancel");
  });
  Seed(kTypeNumeric);
  Open([&](Person& p) {
    p.SelectTab(kMessageTab);
    p.Type(kNumericBody, "9-1*1a#");
    EXPECT_EQ(p.Text(kNumericBody), "91*1#");
    p.Paste(kNumericBody, std::string(40, '7'));
    EXPECT_EQ(p.Text(kNumericBody).size(), 32u);
    p.Press("Cancel");
  });
  EXPECT_EQ(Script().beeps, 6);
}

struct NumberRow {
  std::uint32_t code;
  const char* label;
  std::string lowest, highest, above;  ///< above: a step up from the highest
  std::vector<std::string> refused;
  const char* message;
};

TEST_F(ServiceSheetsTest, NumbersEndAtTheirBoundsAndAreRefusedBeyondThemOnce) {
  const NumberRow rows[] = {{alerting::kTypeNumeric,
                             kDelay,
                             "0",
                             "60",
                             "0",
                             {"61", ""},
                             "Please enter an integer between 0 and 60."},
                            {alerting::kTypeAlpha,
                             kLength,
                             "1",
                             "255",
                             "255",
                             {"0", "256"},
                             "Please enter an integer between 1 and 255."}};
  for (const NumberRow& row : rows) {
    SCOPED_TRACE(row.label);
    Seed(row.code);
    Expect([&](Person& p) {
      p.Type(row.label, row.highest);
      p.StepSpin(row.label, 1);
      EXPECT_EQ(p.Text(row.label), row.above);
      p.Type(row.label, row.lowest);
      p.StepSpin(row.label, -1);
      EXPECT_EQ(p.Text(row.label), row.above == row.lowest ? row.highest : row.lowest);
      for (const std::string& number : row.refused) {
        p.Type(row.label, number);
        p.Press("&Test");
        EXPECT_TRUE(p.IsEnabled("Apply"));
        p.Press("OK");
        EXPECT_EQ(p.FocusedLabel(), row.label);
        EXPECT_THAT(Engine().Writes(), IsEmpty());
      }
      p.Press("Cancel");
    });
    for (std::size_t i = 0; i < row.refused.size(); ++i) {
      Script().ExpectMessage(kApplyFirst, Answer::kYes);
      for (int told = 0; told < 2; ++told) Script().ExpectMessage(row.message);
    }
    EXPECT_EQ(Open(), kCancel);
  }
}

TEST_F(ServiceSheetsTest, AChosenProviderIsShownAtOnceAndStaysAfterCancel) {
  Seed(alerting::kTypeAlpha);
  alertstore::ALRTAPAGE_SERVICE_PROVIDER_REC provider{};
  provider.company.Assign("Chosen");
  provider.maxTextLength = 40;
  provider.baudRate = 300;
  provider.dataBits = 7;
  platform::GUID id{};
  ASSERT_EQ(alerting::ProviderStore().DBAlertRecAdd(provider, id), alertstore::kOk);
  Expect([](Person& p) {
    p.SelectTab("Modems");
    p.SelectTab("General");
    p.Type("&Company:", "Mine");
    p.Type(kLength, "30");
    p.Press("&Set service provider");
    EXPECT_EQ(p.Text("&Company:"), "Mine") << "cancelled";
    p.Press("&Set service provider");
    EXPECT_EQ(p.Text("&Company:"), "Chosen");
    EXPECT_EQ(p.Text("&Location:"), "") << "stored as a blank";
    EXPECT_EQ(p.Text(kLength), "40");
    p.SelectTab(kMessageTab);
    p.Type(kHalfBody, std::string(50, 'b'));
    EXPECT_EQ(p.Text(kHalfBody).size(), 40u) << "as long as the new provider takes";
    p.SelectTab("Modems");
    EXPECT_EQ(p.ChosenOption("Data Bits"), "&7") << "the line of the new provider";
    EXPECT_EQ(p.Text("&Baud Rate:"), "300");
    p.Press("Cancel");
  });
  Script().ExpectMessage(
      "No records in the modem database. You will need to add a location (using the New button) in order to "
      "use a modem.");
  for (const char* button : {"Cancel", "OK"})
    Script().ExpectWindow("Set Alphanumeric Pager Service Provider",
                          [button](Person& p) { p.Press(button); });
  EXPECT_EQ(Open(), kCancel);
  EXPECT_THAT(Bytes(), HasSubstr("Chosen"));
}

TEST_F(ServiceSheetsTest, ABodyThatIsTooLongIsShownAndSavedCut) {
  Seed(alerting::kTypeTts);
  Store<alertstore::ALRTTTSSERVICEREC>(
      [](auto& record) { record.defaultBody.Assign(std::string(600, 'b')); });
  Open([](Person& p) {
    p.SelectTab(kMessageTab);
    EXPECT_EQ(p.Text(kHalfBody).size(), 510u);
    p.Type(kHalfBody, p.Text(kHalfBody));
    p.Press("OK");
  });
  EXPECT_EQ(Bytes().substr(16, 600), std::string(510, 'b') + std::string(90, '\0'));
}

TEST_F(ServiceSheetsTest, AKeywordGoesToTheCaretAndTheTwentyFirstStaysText) {
  Seed(alerting::kTypeGeneric);
  Expect([](Person& p) {
    p.SelectTab(kMessageTab);
    p.Type(kHalfBody, "Alert");
    p.ClickInText(kHalfBody, 3);
    p.Press(kFields);
    EXPECT_EQ(p.Text(kHalfBody), "Ale<Time> rt");
    EXPECT_EQ(p.Selection(kHalfBody), std::pair(10ul, 10ul));
    EXPECT_TRUE(p.IsEnabled("Apply"));
    std::string keywords;
    for (int i = 0; i < 21; ++i) keywords += "<Time>";
    p.Type(kHalfBody, keywords);
    p.Press("OK");
  });
  Script().ExpectWindow("Choose Keyword", [](Person& p) { p.DoubleClickItem("&Keywords:", "<Time>"); });
  Open();
  std::string stored;
  for (int i = 0; i < 20; ++i) stored += "%s";
  EXPECT_EQ(Bytes().substr(16, 47), stored + "<Time>" + '\0');
}

}  // namespace
}  // namespace stories
