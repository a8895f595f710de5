// SPDX-License-Identifier: MIT
// What every service sheet does around its pages, and the mail pages at the keyboard, on the sheet of Internet Mail.
#include "alerting/services/default_message.h"
#include "tests/stories/service_sheet_fixture.h"

namespace stories {
namespace {

using namespace alerting;  // NOLINT
using platform::ui::Answer;
using platform::ui::kCancel;
using platform::ui::Key;
using platform::ui::kOk;
using test_support::StoreOp;

constexpr char kServer[] = "&SMTP Server:";
constexpr char kPriority[] = "P&riority:";
constexpr char kSubjectFields[] = "<< Fie&lds...";
constexpr char kShown[] = "Alert for <User Name> at <Time>";
constexpr char kUpdateFailed[] = "Unable to update the notification service database record.";
constexpr char kReadFailed[] = "Unable to read the record from the notification service database.";

class SmtpSheetTest : public ServiceSheetsTest {
 protected:
  void SetUp() override {
    Seed(kTypeSmtp, 0xA5);
    Store<ALRTSMTPSERVICEREC>([](auto& record) {
      record.smtpServer.Assign("old.example.org");
      record.defaultBody.Assign("Alert for %s at %s");
      record.defaultSubject.Assign("Alert");
      record.defaultPriority = 1;
      WriteKeywordSlots({1, 5}, record.bodyKeywords);
      WriteKeywordSlots({}, record.subjectKeywords);
    });
    Engine().Forget();
  }

  ALRTSMTPSERVICEREC Stored() const {
    ALRTSMTPSERVICEREC record;
    std::memcpy(&record, Bytes().data(), sizeof(record));
    return record;
  }
  std::string StoredServer() const { return std::string(Stored().smtpServer.View()); }
};

TEST_F(SmtpSheetTest, WhatWasAppliedStaysAfterCancel) {
  const int result = Open([this](Person& p) {
    p.Type(kServer, "applied.example.org");
    p.Press("Apply");
    EXPECT_FALSE(p.IsEnabled("Apply"));
    EXPECT_EQ(StoredServer(), "applied.example.org");
    EXPECT_EQ(Library().dbconfig.files_written, 0) << "only closing writes the file";
    p.Type(kServer, "cancelled.example.org");
    p.Press("Cancel");
  });
  EXPECT_EQ(result, kCancel);
  EXPECT_EQ(StoredServer(), "applied.example.org");
  EXPECT_EQ(Library().dbconfig.files_written, 1);
}

TEST_F(SmtpSheetTest, OkWithNothingTouchedWritesTheRecordsOnceMore) {
  const std::string before = Bytes();
  EXPECT_EQ(Open([](Person& p) { p.Press("OK"); }), kOk);
  EXPECT_EQ(Engine().Count(CommonFile(), StoreOp::kUpdate), 1);
  EXPECT_EQ(Engine().Count(SpecificFile(), StoreOp::kUpdate), 1);
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Common().virgin, 0u);
  EXPECT_EQ(Library().dbconfig.files_written, 1);
}

TEST_F(SmtpSheetTest, AServiceThatCannotBeReadAgainIsShownAsItWas) {
  Engine().FailNth(CommonFile(), StoreOp::kRetrieve, 1);
  Script().ExpectMessage(kReadFailed);
  Open([](Person& p) {
    EXPECT_NE(p.Text(kServer), "old.example.org") << "the list has read it before that";
    p.Press("Cancel");
  });
}

TEST_F(SmtpSheetTest, TheSheetShowsWhatIsStoredWhenItOpens) {
  Open([](Person& p) {
    EXPECT_EQ(p.Text(kServer), "old.example.org") << "newer than what the list has read";
    for (const char* hidden : {kLogin, kPassword, kVerify}) EXPECT_FALSE(p.IsVisible(hidden)) << hidden;
    p.SelectTab(kMessageTab);
    EXPECT_EQ(p.Text(kSubject), "Alert");
    EXPECT_EQ(p.Text(kBody), kShown);
    EXPECT_EQ(p.Text(kPriority), "Normal");
    EXPECT_FALSE(p.IsEnabled("Apply")) << "looking changes nothing";
    p.Press("Cancel");
  });
}

TEST_F(SmtpSheetTest, AConfigurationFileThatCannotBeWrittenIsReportedAfterTheSheetClosed) {
  Library().dbconfig.result = 1;
  Expect(Fill({{kServer, "mail.example.org"}}));
  Script().ExpectMessage("Error writing to alert manager configuration file.");
  EXPECT_EQ(Open(), kOk);
  EXPECT_EQ(StoredServer(), "mail.example.org");
}

TEST_F(SmtpSheetTest, ATestAsksWhatToDoWithPendingEdits) {
  const struct {
    Answer answer;
    bool fails;
    const char* told;  ///< null: the test is called off; "": it opens
    const char* stored;
  } rows[] = {{Answer::kCancel, false, nullptr, "old.example.org"},
              {Answer::kNo, false, "", "old.example.org"},
              {Answer::kYes, true, kUpdateFailed, "old.example.org"},
              {Answer::kYes, false, "", "mail.example.org"}};
  for (const auto& row : rows) {
    Engine().Forget();
    if (row.fails) Engine().FailAll(CommonFile(), StoreOp::kUpdate);
    Expect([&](Person& p) {
      p.Type(kServer, "mail.example.org");
      p.Press("&Test");
      EXPECT_EQ(StoredServer(), row.stored);
      EXPECT_EQ(p.Text(kServer), "mail.example.org");
      p.Press("Cancel");
    });
    Script().ExpectMessage(kApplyFirst, row.answer);
    if (row.fails) Script().ExpectMessage(row.told);
    if (row.told != nullptr && !row.fails) ExpectTest();
    Open();
    Engine().FailNone();
    EXPECT_EQ(Engine().Writes().empty(), StoredServer() == "old.example.org");
  }
}

TEST_F(SmtpSheetTest, AServerUsedBeforeIsChosenAndHeadsTheListOnceItIsSaved) {
  Open([this](Person& p) {
    p.PressBeside(kServer, "...");
    EXPECT_EQ(p.Text(kServer), "old.example.org") << "nothing was chosen";
    EXPECT_FALSE(p.IsEnabled("Apply"));
    Library().agentui.chosen_address = "recent.example.org";
    p.PressBeside(kServer, "...");
    EXPECT_EQ(p.Text(kServer), "recent.example.org");
    p.Press("Apply");
    p.SelectTab(kMessageTab);
    p.Type(kBody, "more");
    p.Press("OK");
  });
  EXPECT_EQ(StoredServer(), "recent.example.org");
  EXPECT_THAT(Library().agentui.recorded, ElementsAre("recent.example.org"))
      << "a page is saved once for each edit";
}

TEST_F(SmtpSheetTest, SubjectPriorityAndLinesOfTheDefaultMessageAreStored) {
  Expect([](Person& p) {
    p.SelectTab(kMessageTab);
    EXPECT_THAT(p.Items(kPriority), ElementsAre("Urgent", "Normal", "Low"));
    p.Choose(kPriority, "Urgent");
    p.Type(kSubject, "On <event name>: ");
    p.Press(kSubjectFields);
    p.Type(kBody, "100%s\nof <Tim");
    p.Press("OK");
  });
  Script().ExpectWindow("Choose Keyword", [](Person& p) {
    EXPECT_EQ(p.Items("&Keywords:").size(), 13u);
    p.DoubleClickItem("&Keywords:", "<Event ID>");
  });
  Open();
  EXPECT_EQ(Stored().defaultPriority, 0u);
  EXPECT_EQ(Stored().defaultSubject.View(), "On %s: %ld ");
  EXPECT_EQ(ReadKeywordSlots(Stored().subjectKeywords), (KeywordIds{4, 11}));
  EXPECT_EQ(Stored().defaultBody.View(), "100%s\r\nof <Tim");
  EXPECT_EQ(Stored().bodyKeywords[0].id, 0u);
}

TEST_F(SmtpSheetTest, AKeywordIsInsertedAtTheCaretAndTheCaretGoesBehindIt) {
  Expect([](Person& p) {
    p.SelectTab(kMessageTab);
    p.ClickInText(kBody, 3);
    p.Press(kFields);
    EXPECT_EQ(p.Text(kBody), kShown);
    EXPECT_FALSE(p.IsEnabled("Apply")) << "cancelled";
    p.Press(kFields);
    EXPECT_EQ(p.Text(kBody), "Ale<User Name> rt for <User Name> at <Time>");
    EXPECT_EQ(p.FocusedLabel(), kBody);
    EXPECT_EQ(p.Selection(kBody), std::pair(15ul, 15ul));
    EXPECT_TRUE(p.IsEnabled("Apply"));
    p.Press("Cancel");
  });
  for (const char* button : {"Cancel", "OK"})
    Script().ExpectWindow("Choose Keyword", [button](Person& p) { p.Press(button); });
  Open();
}

TEST_F(SmtpSheetTest, AKeywordIsSelectedAndDeletedAsOneByKeyboardAndMouse) {
  Open([this](Person& p) {
    p.SelectTab(kMessageTab);
    p.ClickInText(kBody, 31);
    p.TypeHere("\b");
    EXPECT_EQ(p.Selection(kBody), std::pair(25ul, 31ul));
    EXPECT_EQ(p.Text(kBody), kShown);
    EXPECT_EQ(Script().beeps, 1);
    p.TypeHere("\b");
    EXPECT_EQ(p.Text(kBody), "Alert for <User Name> at ");
    p.Press("Apply");
    EXPECT_EQ(Stored().defaultBody.View(), "Alert for %s at ");
    EXPECT_EQ(ReadKeywordSlots(Stored().bodyKeywords), (KeywordIds{1}));
    p.SelectText(kBody, 5, 16);
    EXPECT_EQ(p.Selection(kBody), std::pair(5ul, 21ul)) << "a drag into a keyword takes it whole";
    p.ClickInText(kBody, 12);
    EXPECT_EQ(p.Selection(kBody), std::pair(10ul, 21ul));
    p.Press(Key::kDelete);
    EXPECT_EQ(p.Text(kBody), "Alert for  at ");
    p.Press("OK");
  });
  EXPECT_EQ(Stored().bodyKeywords[0].id, 0u);
}

}  // namespace
}  // namespace stories
