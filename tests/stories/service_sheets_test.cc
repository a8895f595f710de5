// SPDX-License-Identifier: MIT
#include <filesystem>

#include "alerting/services/default_message.h"
#include "companions/dbconfig/dbconfig.h"
#include "platform/base/paths.h"
#include "tests/stories/service_sheet_fixture.h"

namespace stories {
namespace {

using namespace alerting;  // NOLINT
using platform::ui::Answer;
using platform::ui::kCancel;
using platform::ui::kOk;
using test_support::StoreOp;

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
  SetCompanions({});  // the real components
  for (const SheetRow& row : Rows()) {
    SCOPED_TRACE(GetServiceTypeName(row.code));
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
    ASSERT_TRUE(platform::ReadWholeFile(Library().Directory() + "/" + dbconfig::kConfigFileName, file));
    for (const Entries* entries : {&row.general, &row.message})
      for (const Entry& entry : *entries)
        EXPECT_THAT(file,
                    HasSubstr(entry.width > 0 ? "\"" + StoredForm(entry.typed) + "\"" : ": " + entry.typed));
  }
}

Labels TabsOf(const SheetRow& row) {
  Labels tabs{"General"};
  if (!row.message.empty()) tabs.push_back(kMessageTab);
  constexpr std::uint32_t kDialing[] = {kTypeMci, kTypeCompuServe, kTypeAlpha, kTypeNumeric, kTypeGeneric};
  if (std::find(std::begin(kDialing), std::end(kDialing), row.code) != std::end(kDialing))
    tabs.push_back("Modems");
  return tabs;
}

TEST_F(ServiceSheetsTest, CancelWritesNothingAndEveryControlHasItsHelp) {
  for (const SheetRow& row : Rows()) {
    SCOPED_TRACE(GetServiceTypeName(row.code));
    Seed(row.code);
    const int result = Open([&](Person& p) {
      EXPECT_EQ(p.Tabs(), TabsOf(row));
      p.Check(kEnable, false);
      EXPECT_FALSE(p.IsEnabled("&Test"));
      p.Check(kEnable, true);
      EXPECT_TRUE(p.IsEnabled("&Test"));
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
    SCOPED_TRACE(GetServiceTypeName(row.code));
    Seed(row.code);
    Expect([&](Person& p) {
      p.Check(kEnable, false);
      Engine().FailAll(CommonFile(), StoreOp::kUpdate);
      p.Press("OK");
      EXPECT_FALSE(p.IsChecked(kEnable));
      EXPECT_TRUE(p.IsEnabled("Apply"));
      EXPECT_THAT(Engine().Writes(), IsEmpty());
      if (HasRecord()) Engine().FailAll(SpecificFile(), StoreOp::kUpdate);
      if (HasRecord()) p.Press("OK");
      EXPECT_EQ(Engine().Writes().size(), HasRecord() ? 1u : 0u) << "the common record";
      EXPECT_THAT(Engine().HeldLocks(), IsEmpty());
      Engine().FailNone();
      p.Press("OK");
    });
    Script().ExpectMessage("Unable to update the notification service database record.");
    if (HasRecord())
      Script().ExpectMessage("Unable to update the notification service-specific database record.");
    EXPECT_EQ(Open(), kOk);
    EXPECT_EQ(Common().enabled, 0u);
    Open([](Person& p) {
      EXPECT_FALSE(p.IsChecked(kEnable) || p.IsEnabled("&Test"));
      p.Press("Cancel");
    });
  }
}

TEST_F(ServiceSheetsTest, PasswordsThatDifferAreNotSaved) {
  for (const std::uint32_t code : {kTypeMci, kTypeCompuServe, kTypeVim}) {
    Seed(code);
    Expect([&](Person& p) {
      p.Type(kPassword, "secret");
      p.SelectTab(kMessageTab);
      p.Type(kBody, "edited");
      p.Press("OK");
      EXPECT_THAT(Engine().Writes(), IsEmpty());
      EXPECT_TRUE(p.IsEnabled("Apply"));
      p.Press("Apply");
      EXPECT_THAT(Bytes(), AllOf(HasSubstr("edited"), Not(HasSubstr("secret")))) << "nor tried again";
      p.SelectTab("General");
      EXPECT_EQ(p.Text(kPassword), "******");
      p.Type(kVerify, "secret");
      p.Press("OK");
    });
    Script().ExpectMessage("The two password strings are not the same.  Save aborted.");
    EXPECT_EQ(Open(), kOk);
    EXPECT_THAT(Bytes(), HasSubstr("secret"));
  }
}

TEST_F(ServiceSheetsTest, ASingleBlankIsShownAndSavedAsNothing) {
  Seed(kTypeMci);
  Store<ALRTMCISERVICEREC>([](auto& record) {
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
  Seed(kTypeWave);
  Store<ALRTWAVESERVICEREC>([](auto& record) {
    record.text1.Assign("old");
    record.text2.Assign("old");
  });
  EXPECT_TRUE(save());
  Seed(kTypeTts);
  Store<ALRTTTSSERVICEREC>([](auto& record) { record.text.Assign("old"); });
  EXPECT_TRUE(save());
}

constexpr char kNoUniversalPath[] =
    "Unable to create a UNC universal pathname to the file you selected.\nThe product may not operate "
    "correctly as a result.\nRefer to the implementation guide for additional information.";
constexpr char kUseAnyway[] = "\nDo you wish to use the non-UNC path anyway?";

TEST_F(ServiceSheetsTest, AChosenPostOfficeIsShownAndStoredInUniversalForm) {
  Seed(kTypeMhs);
  Library().netpath.operation13 = 0;
  Library().netpath.resolved = "/net/post";
  const std::string deep = Library().Directory() + "/" + std::string(200, 'd') + "/" + std::string(60, 'd');
  ASSERT_TRUE(std::filesystem::create_directories(deep));
  Script().ExpectWindow(kSheet, [&](Person& p) {
    p.PressBeside(kDirectory, "...");
    EXPECT_EQ(p.Text(kDirectory), "");
    EXPECT_FALSE(p.IsEnabled("Apply")) << "cancelled";
    p.PressBeside(kDirectory, "...");
    EXPECT_EQ(p.Text(kDirectory), "/net/post");
    Library().netpath.universal = "\\\\server\\post";
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
      "guide for additional information.");
  EXPECT_EQ(Open(), kOk);
  EXPECT_EQ(Bytes().substr(16, 15), std::string("\\\\server\\post\0", 15));
}

TEST_F(ServiceSheetsTest, APostOfficeWithoutUniversalFormIsStoredOnlyWhenThePersonAgrees) {
  Seed(kTypeMhs);
  Library().netpath.operation13 = 0;
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
  Seed(kTypeMhs);
  Desk().SetSystemMajorVersion(3);
  Open([](Person& p) {
    EXPECT_FALSE(p.IsVisible("..."));
    p.Press("Cancel");
  });
}

TEST_F(ServiceSheetsTest, FieldsHoldAsMuchAsTheirRecords) {
  const struct {
    std::uint32_t code;
    const char* label;
    char character;
    std::size_t limit;
    const char* tab = "General";
  } rows[] = {{kTypeMhs, kDirectory, 'd', 260},
              {kTypeMci, kPhone, '1', 25},
              {kTypeCompuServe, kLogin, 'l', 48},
              {kTypeSmtp, "&SMTP Server:", 's', 255},
              {kTypeMapi, kPassword, 'p', 8},
              {kTypeMapi, "&Login ID or Profile Name:", 'l', 255},
              {kTypeVim, kVerify, 'p', 48},
              {kTypeNumeric, kDelay, '1', 2},
              {kTypeNumeric, kNumericBody, '7', 32, kMessageTab},
              {kTypeAlpha, "&Company:", 'c', 64},
              {kTypeAlpha, "&Location:", 'l', 2048},
              {kTypeAlpha, "P&hone:", '1', 25},
              {kTypeAlpha, kLength, '1', 3},
              {kTypeSmtp, kSubject, 's', 256, kMessageTab},
              {kTypeCompuServe, kSubject, 's', 40, kMessageTab},
              {kTypeSmtp, kBody, 'b', 1024, kMessageTab},
              {kTypeTts, kHalfBody, 'b', 510, kMessageTab}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.label);
    Seed(row.code);
    Open([&](Person& p) {
      p.SelectTab(row.tab);
      p.Paste(row.label, std::string(3000, row.character));
      EXPECT_EQ(p.Text(row.label).size(), row.limit);
      p.Press("Cancel");
    });
  }
}

TEST_F(ServiceSheetsTest, PhoneAndPagerFieldsRefuseOtherCharactersWithABeep) {
  const struct {
    std::uint32_t code;
    const char *tab, *label, *typed, *taken;
  } rows[] = {{kTypeAlpha, "General", "P&hone:", "55a5*-(0)", "555-(0)"},
              {kTypeCompuServe, "General", kPhone, "5 5,x5", "55,5"},
              {kTypeNumeric, kMessageTab, kNumericBody, "9-1*1a#", "91*1#"}};
  for (const auto& row : rows) {
    Seed(row.code);
    Open([&](Person& p) {
      p.SelectTab(row.tab);
      p.Type(row.label, row.typed);
      EXPECT_EQ(p.Text(row.label), row.taken);
      p.Paste(row.label, "a");
      EXPECT_EQ(p.Text(row.label), row.taken);
      p.Press("Cancel");
    });
  }
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
  const NumberRow rows[] = {
      {kTypeNumeric, kDelay, "0", "60", "0", {"61", ""}, "Please enter an integer between 0 and 60."},
      {kTypeAlpha, kLength, "1", "255", "255", {"0", "256"}, "Please enter an integer between 1 and 255."}};
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
  Seed(kTypeAlpha);
  ALRTAPAGE_SERVICE_PROVIDER_REC provider{};
  provider.company.Assign("Chosen");
  provider.maxTextLength = 40;
  provider.baudRate = 300;
  provider.dataBits = 7;
  test_support::AddRecord(ProviderStore(), provider);
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

TEST_F(ServiceSheetsTest, ABodyAloneIsShownCutAndSavedWithoutSubjectAndWithThePriorityItHad) {
  Seed(kTypeSnmp);
  Store<ALRTSNMPSERVICEREC>([](auto& record) {
    record.defaultBody.Assign(std::string(300, 'b'));
    record.defaultSubject.Assign("%s");
    WriteKeywordSlots({5}, record.subjectKeywords);
    record.defaultPriority = 2;
  });
  std::string expected = WithEntries(Bytes(), Rows()[1]);
  expected.replace(3155, 257, 257, '\0').replace(4436, 1020, 1020, '\0');
  Open([](Person& p) {
    p.SelectTab(kMessageTab);
    EXPECT_EQ(p.Text(kHalfBody), std::string(255, 'b'));
    p.Type(kHalfBody, "See to it at <Time>");
    p.Press("OK");
  });
  EXPECT_EQ(FirstDifference(Bytes(), expected), -1);
}

TEST_F(ServiceSheetsTest, MciBodiesAreBrokenIntoLinesAndCompuServeHasItsNote) {
  constexpr char kNote[] =
      "Note: Compuserve subjects have a maximum length of 40 characters.  If you use fields they may be "
      "truncated.";
  for (const std::uint32_t code : {kTypeMci, kTypeCompuServe}) {
    const bool mci = code == kTypeMci;
    Seed(code);
    Open([&](Person& p) {
      p.SelectTab(kMessageTab);
      EXPECT_EQ(p.IsVisible(kNote), !mci);
      p.Type(kBody, std::string(100, 'b'));
      p.Press("OK");
    });
    EXPECT_THAT(Bytes(), HasSubstr(std::string(mci ? 79 : 100, 'b') + (mci ? "\r\n" : "")));
  }
}

}  // namespace
}  // namespace stories
