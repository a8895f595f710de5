// SPDX-License-Identifier: MIT
#include "alerting/alerting.h"
#include "companions/dbconfig/dbconfig.h"
#include "platform/base/paths.h"
#include "tests/stories/smtp_sheet_fixture.h"

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

constexpr char kUpdateFailed[] = "Unable to update the notification service database record.";
constexpr char kSpecificUpdateFailed[] =
    "Unable to update the notification service-specific database record.";
constexpr char kReadFailed[] = "Unable to read the record from the notification service database.";
constexpr char kCompuServeNote[] =
    "Note: Compuserve subjects have a maximum length of 40 characters.  If you use fields they may be "
    "truncated.";
constexpr char kApplyFirst[] =
    "Do you want to apply changes to this service before running the test?  If yes, the changes will be "
    "saved.  If no, the test will be run using the old values.";

/// A text as a field of that width stores it.
std::string Padded(std::string text, std::size_t width) {
  text.resize(width);
  return text;
}

TEST_F(SmtpSheetTest, AnEditedServiceReachesTheStoreAndTheConfigurationFile) {
  alerting::SetCompanions({});  // the real components
  ExpectSheet([](Person& p) {
    p.Type(kServer, "mail.example.org");
    p.SelectTab(kMessageTab);
    p.Type(kBody, "Dear ");
    p.Press("<< &Fields...");
    p.TypeHere("look!");
    EXPECT_EQ(p.Text(kBody), "Dear <User Name> look!");
    p.Press("OK");
  });
  Script().ExpectWindow("Choose Keyword", [](Person& p) {
    p.Choose("&Keywords:", "<User Name>");
    p.Press("OK");
  });
  EXPECT_EQ(DomainServicePropertySheet(nullptr, 0), kOk);

  const std::string bytes = StoredBytes();
  EXPECT_EQ(bytes.substr(16, 256), Padded("mail.example.org", 256));
  EXPECT_EQ(bytes.substr(272, 49), Padded("alerts", 49));
  EXPECT_EQ(bytes.substr(370, 1025), Padded("Dear %s look!", 1025));
  const std::string id_of_user_name("\x01\0\0\0", 4);
  EXPECT_EQ(bytes.substr(1656, 51), Padded("<User Name>", 41) + id_of_user_name + Padded("%s", 6));
  EXPECT_EQ(bytes.substr(1656 + 51, 19 * 51), std::string(19 * 51, '\0'))
      << "the slots of before are cleared";
  EXPECT_EQ(bytes.substr(2676, 257), std::string(257, '\xA5')) << "unused bytes travel";
  EXPECT_EQ(StoredCommon().virgin, 0u);

  std::string file;
  ASSERT_TRUE(platform::ReadWholeFile(Library().Directory() + "/" + dbconfig::kConfigFileName, file));
  EXPECT_THAT(file, HasSubstr("\"mail.example.org\""));
  EXPECT_THAT(file, HasSubstr("\"Dear %s look!\""));
  EXPECT_THAT(file, HasSubstr("\"<User Name>\""));
}

TEST_F(SmtpSheetTest, WhatWasAppliedStaysAfterCancel) {
  ExpectSheet([this](Person& p) {
    p.Type(kServer, "applied.example.org");
    p.Press("Apply");
    EXPECT_FALSE(p.IsEnabled("Apply"));
    EXPECT_EQ(StoredServer(), "applied.example.org");
    EXPECT_EQ(Library().dbconfig.files_written, 0) << "only closing writes the file";
    p.Type(kServer, "cancelled.example.org");
    p.Press("Cancel");
  });
  EXPECT_EQ(Open(), kCancel);
  EXPECT_EQ(StoredServer(), "applied.example.org");
  EXPECT_EQ(Library().dbconfig.files_written, 1);
}

TEST_F(SmtpSheetTest, CancelWritesNoRecord) {
  ExpectSheet([](Person& p) {
    p.Type(kServer, "cancelled.example.org");
    p.Check("&Enable Service", false);
    p.Press("Cancel");
  });
  EXPECT_EQ(Open(), kCancel);
  EXPECT_THAT(Engine().Writes(), IsEmpty());
  EXPECT_EQ(Library().dbconfig.files_written, 1);
}

TEST_F(SmtpSheetTest, OkWithNothingTouchedWritesTheRecordsOnceMore) {
  const std::string before = StoredBytes();
  ExpectSheet([](Person& p) { p.Press("OK"); });
  EXPECT_EQ(Open(), kOk);
  EXPECT_EQ(Engine().Count(CommonFile(), StoreOp::kUpdate), 1);
  EXPECT_EQ(Engine().Count(SpecificFile(), StoreOp::kUpdate), 1);
  EXPECT_EQ(StoredBytes(), before);
  EXPECT_EQ(StoredCommon().virgin, 0u);
  EXPECT_EQ(Library().dbconfig.files_written, 1);
}

TEST_F(SmtpSheetTest, AFailedUpdateKeepsTheSheetOpenUntilTheNextOkSucceeds) {
  struct Row {
    std::string store;
    const char* message;
    int common_writes;
  };
  for (const Row& row :
       {Row{CommonFile(), kUpdateFailed, 0}, Row{SpecificFile(), kSpecificUpdateFailed, 1}}) {
    SCOPED_TRACE(row.message);
    Store([](auto& record) { record.smtpServer.Assign("old.example.org"); });
    Engine().Forget();
    Engine().FailAll(row.store, StoreOp::kUpdate);
    ExpectSheet([&](Person& p) {
      p.Type(kServer, "mail.example.org");
      p.Press("OK");
      EXPECT_EQ(p.Text(kServer), "mail.example.org");
      EXPECT_TRUE(p.IsEnabled("Apply"));
      EXPECT_THAT(Engine().HeldLocks(), IsEmpty());
      EXPECT_EQ(Engine().Writes().size(), static_cast<std::size_t>(row.common_writes));
      EXPECT_EQ(StoredServer(), "old.example.org");
      Engine().FailNone();
      p.Press("OK");
    });
    Script().ExpectMessage(row.message);
    EXPECT_EQ(Open(), kOk);
    EXPECT_EQ(StoredServer(), "mail.example.org");
  }
}

TEST_F(SmtpSheetTest, AServiceThatCannotBeReadAgainIsShownAsItWas) {
  Service();  // the list has read it
  Engine().FailNth(CommonFile(), StoreOp::kRetrieve, 1);
  Script().ExpectMessage(kReadFailed);
  ExpectSheet([](Person& p) {
    EXPECT_EQ(p.Text(kServer), "old.example.org");
    p.Press("Cancel");
  });
  EXPECT_EQ(Open(), kCancel);
}

TEST_F(SmtpSheetTest, AServiceThatAnotherConsoleDeletedCannotBeSaved) {
  Service();
  ASSERT_EQ(alerting::ServiceStore().DBAlertRecDelete(ServiceId()), alertstore::kOk);
  Engine().Forget();
  Script().ExpectMessage(kReadFailed);
  ExpectSheet([](Person& p) {
    p.Press("OK");
    p.Press("Cancel");
  });
  Script().ExpectMessage(kUpdateFailed);
  EXPECT_EQ(Open(), kCancel);
  EXPECT_THAT(Engine().Writes(), IsEmpty());
  EXPECT_THAT(Engine().HeldLocks(), IsEmpty());
}

TEST_F(SmtpSheetTest, TheSheetShowsWhatIsStoredWhenItOpens) {
  Service();
  Store([](auto& record) { record.smtpServer.Assign("newer.example.org"); });
  ExpectSheet([](Person& p) {
    EXPECT_EQ(p.Text(kServer), "newer.example.org");
    EXPECT_FALSE(p.IsEnabled("Apply"));
    p.SelectTab(kMessageTab);
    EXPECT_EQ(p.Text(kSubject), "Alert");
    EXPECT_EQ(p.Text(kBody), "Alert for <User Name> at <Time>");
    EXPECT_EQ(p.Text("P&riority:"), "Normal");
    EXPECT_FALSE(p.IsVisible(kCompuServeNote));
    EXPECT_FALSE(p.IsEnabled("Apply")) << "looking changes nothing";
    p.Press("Cancel");
  });
  Open();
}

TEST_F(SmtpSheetTest, AConfigurationFileThatCannotBeWrittenIsReportedAfterTheSheetClosed) {
  Library().dbconfig.result = 1;
  ExpectSheet([](Person& p) {
    p.Type(kServer, "mail.example.org");
    p.Press("OK");
  });
  Script().ExpectMessage("Error writing to alert manager configuration file.");
  EXPECT_EQ(Open(), kOk);
  EXPECT_EQ(StoredServer(), "mail.example.org");
}

TEST_F(SmtpSheetTest, ATestWithoutPendingEditsAsksNothing) {
  ExpectSheet([](Person& p) {
    p.Press("&Test");
    p.Press("Cancel");
  });
  Script().ExpectMessage(kTestLater);
  Open();
  EXPECT_THAT(Engine().Writes(), IsEmpty());
}

TEST_F(SmtpSheetTest, YesAppliesPendingEditsBeforeTheTest) {
  ExpectSheet([this](Person& p) {
    p.Type(kServer, "mail.example.org");
    p.Press("&Test");
    EXPECT_EQ(StoredServer(), "mail.example.org");
    EXPECT_FALSE(p.IsEnabled("Apply"));
    p.Press("Cancel");
  });
  Script().ExpectMessage(kApplyFirst, Answer::kYes);
  Script().ExpectMessage(kTestLater);
  Open();
}

TEST_F(SmtpSheetTest, NoTestRunsWhenTheChangesCannotBeApplied) {
  Engine().FailAll(CommonFile(), StoreOp::kUpdate);
  ExpectSheet([](Person& p) {
    p.Type(kServer, "mail.example.org");
    p.Press("&Test");
    p.Press("Cancel");
  });
  Script().ExpectMessage(kApplyFirst, Answer::kYes);
  Script().ExpectMessage(kUpdateFailed);
  Open();
  EXPECT_EQ(StoredServer(), "old.example.org");
}

TEST_F(SmtpSheetTest, NoTestsTheStoredValuesAndCancelTestsNothing) {
  ExpectSheet([](Person& p) {
    p.Type(kServer, "mail.example.org");
    p.Press("&Test");
    p.Press("&Test");
    EXPECT_EQ(p.Text(kServer), "mail.example.org");
    EXPECT_TRUE(p.IsEnabled("Apply"));
    p.Press("Cancel");
  });
  Script().ExpectMessage(kApplyFirst, Answer::kNo);
  Script().ExpectMessage(kTestLater);
  Script().ExpectMessage(kApplyFirst, Answer::kCancel);
  Open();
  EXPECT_THAT(Engine().Writes(), IsEmpty());
}

}  // namespace
}  // namespace stories
