// SPDX-License-Identifier: MIT
#include "tests/stories/smtp_sheet_fixture.h"

namespace stories {
namespace {

using desktops::Person;
using platform::ui::Key;
using testing::ElementsAre;

using SmtpPagesTest = SmtpSheetTest;
constexpr char kEnable[] = "&Enable Service";
constexpr char kPriority[] = "P&riority:";
constexpr char kSubjectFields[] = "<< Fie&lds...";
constexpr char kBodyFields[] = "<< &Fields...";

const Labels kGeneralControls = {kEnable, "&Test", kServer, "..."};
const Labels kMessageControls = {kSubject, kSubjectFields, kBody, kBodyFields, kPriority};

/// Presses Tab from the first control on, once for each other.
Labels TabOrder(Person& p, const Labels& controls) {
  p.Focus(controls.front());
  Labels order = {p.FocusedLabel()};
  while (order.size() < controls.size()) {
    p.Press(Key::kTab);
    order.push_back(p.FocusedLabel());
  }
  return order;
}

TEST_F(SmtpPagesTest, TabFollowsTheReadingOrder) {
  ExpectSheet([](Person& p) {
    EXPECT_THAT(p.Tabs(), ElementsAre("General", kMessageTab));
    for (const char* hidden : {"&Login ID:", "&Password:", "&Verify Password:"})
      EXPECT_FALSE(p.IsVisible(hidden)) << hidden;
    EXPECT_EQ(TabOrder(p, kGeneralControls), kGeneralControls);
    p.SelectTab(kMessageTab);
    EXPECT_EQ(TabOrder(p, kMessageControls), kMessageControls);
    p.Press("Cancel");
  });
  Open();
}

TEST_F(SmtpPagesTest, EveryAccessKeyReachesItsControl) {
  ExpectSheet([](Person& p) {
    p.AccessKey('e');
    EXPECT_FALSE(p.IsChecked(kEnable));
    p.AccessKey('e');
    EXPECT_TRUE(p.IsChecked(kEnable));
    p.AccessKey('s');
    EXPECT_EQ(p.FocusedLabel(), kServer);
    p.AccessKey('a');
    EXPECT_FALSE(p.IsEnabled("Apply"));
    p.AccessKey('t');
    p.SelectTab(kMessageTab);
    p.AccessKey('s');
    EXPECT_EQ(p.FocusedLabel(), kSubject);
    p.AccessKey('m');
    EXPECT_EQ(p.FocusedLabel(), kBody);
    p.AccessKey('r');
    EXPECT_EQ(p.FocusedLabel(), kPriority);
    p.AccessKey('l');
    p.AccessKey('f');
    p.Press("Cancel");
  });
  Script().ExpectMessage(kTestLater);
  for (int i = 0; i < 2; ++i) {
    Script().ExpectWindow("Choose Keyword", [](Person& p) {
      p.AccessKey('k');
      EXPECT_EQ(p.FocusedLabel(), "&Keywords:");
      p.Press(Key::kEscape);
    });
  }
  Open();
}

TEST_F(SmtpPagesTest, EveryControlHasAHelpTextOfItsOwn) {
  ExpectSheet([](Person& p) {
    ExpectOwnHelp(p, kGeneralControls);
    p.SelectTab(kMessageTab);
    ExpectOwnHelp(p, kMessageControls);
    p.Press(kBodyFields);
    p.Press("Cancel");
  });
  Script().ExpectWindow("Choose Keyword", [](Person& p) {
    ExpectOwnHelp(p, {"&Keywords:", "OK", "Cancel"});
    p.Press("Cancel");
  });
  Open();
}

TEST_F(SmtpPagesTest, TheTestButtonFollowsTheEnableBox) {
  ExpectSheet([](Person& p) {
    EXPECT_TRUE(p.IsEnabled("&Test"));
    p.Check(kEnable, false);
    EXPECT_FALSE(p.IsEnabled("&Test"));
    EXPECT_TRUE(p.IsEnabled("Apply"));
    p.Press("OK");
  });
  Open();
  EXPECT_EQ(StoredCommon().enabled, 0u);
  EXPECT_EQ(StoredServer(), "old.example.org");

  ExpectSheet([](Person& p) {
    EXPECT_FALSE(p.IsChecked(kEnable));
    EXPECT_FALSE(p.IsEnabled("&Test"));
    p.Press("Cancel");
  });
  Open();
}

TEST_F(SmtpPagesTest, ASingleBlankIsShownAndSavedAsNothing) {
  Store([](auto& record) {
    record.smtpServer.Assign(" ");
    record.password.Assign(" ");
  });
  ExpectSheet([](Person& p) {
    EXPECT_EQ(p.Text(kServer), "");
    p.Check(kEnable, false);
    p.Press("OK");
  });
  Open();
  EXPECT_TRUE(Stored().smtpServer.Empty());
  EXPECT_TRUE(Stored().password.Empty());
}

TEST_F(SmtpPagesTest, AServerUsedBeforeIsChosenAndHeadsTheListAfterASave) {
  ExpectSheet([this](Person& p) {
    p.PressBeside(kServer, "...");
    EXPECT_EQ(p.Text(kServer), "old.example.org") << "nothing was chosen";
    EXPECT_FALSE(p.IsEnabled("Apply"));
    Library().agentui.chosen_address = "recent.example.org";
    p.PressBeside(kServer, "...");
    EXPECT_EQ(p.Text(kServer), "recent.example.org");
    EXPECT_TRUE(p.IsEnabled("Apply"));
    p.Press("OK");
  });
  Open();
  EXPECT_EQ(StoredServer(), "recent.example.org");
  EXPECT_THAT(Library().agentui.recorded, ElementsAre("recent.example.org"));
}

TEST_F(SmtpPagesTest, FieldsHoldAsMuchAsTheirRecords) {
  const std::string much(2000, 'm');
  ExpectSheet([&](Person& p) {
    p.Type(kServer, "");
    p.Paste(kServer, much);
    EXPECT_EQ(p.Text(kServer).size(), 255u);
    p.SelectTab(kMessageTab);
    p.Type(kSubject, "");
    p.Paste(kSubject, much);
    EXPECT_EQ(p.Text(kSubject).size(), 256u);
    p.Type(kBody, "");
    p.Paste(kBody, much);
    EXPECT_EQ(p.Text(kBody).size(), 1024u);
    p.Press("OK");
  });
  Open();
  EXPECT_EQ(Stored().smtpServer.View(), much.substr(0, 255));
  EXPECT_EQ(Stored().defaultSubject.View(), much.substr(0, 256));
  EXPECT_EQ(Stored().defaultBody.View(), much.substr(0, 1024));
}

TEST_F(SmtpPagesTest, SubjectPriorityAndLinesOfTheDefaultMessageAreStored) {
  ExpectSheet([](Person& p) {
    p.SelectTab(kMessageTab);
    EXPECT_THAT(p.Items(kPriority), ElementsAre("Urgent", "Normal", "Low"));
    p.Choose(kPriority, "Urgent");
    p.Type(kSubject, "On <event name>: ");
    p.Press(kSubjectFields);
    p.Type(kBody, "100%s\nof <Tim");
    p.Press("OK");
  });
  Script().ExpectWindow("Choose Keyword", [](Person& p) { p.DoubleClickItem("&Keywords:", "<Event ID>"); });
  Open();
  EXPECT_EQ(Stored().defaultPriority, 0u);
  EXPECT_EQ(Stored().defaultSubject.View(), "On %s: %ld ");
  EXPECT_THAT(alerting::ReadKeywordSlots(Stored().subjectKeywords),
              ElementsAre(4, 11, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0));
  EXPECT_EQ(Stored().defaultBody.View(), "100%s\r\nof <Tim");
  EXPECT_EQ(Stored().bodyKeywords[0].id, 0u);
}

TEST_F(SmtpPagesTest, AKeywordIsInsertedAtTheCaretAndTheCaretGoesBehindIt) {
  ExpectSheet([](Person& p) {
    p.SelectTab(kMessageTab);
    p.ClickInText(kBody, 3);
    p.Press(kBodyFields);
    EXPECT_EQ(p.Text(kBody), "Alert for <User Name> at <Time>");
    EXPECT_FALSE(p.IsEnabled("Apply")) << "cancelled";
    p.Press(kBodyFields);
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

TEST_F(SmtpPagesTest, AKeywordIsSelectedAndDeletedAsOneByTheKeyboard) {
  ExpectSheet([this](Person& p) {
    p.SelectTab(kMessageTab);
    p.ClickInText(kBody, 31);
    p.TypeHere("\b");
    EXPECT_EQ(p.Selection(kBody), std::pair(25ul, 31ul));
    EXPECT_EQ(p.Text(kBody), "Alert for <User Name> at <Time>");
    EXPECT_EQ(Script().beeps, 1);
    p.TypeHere("\b");
    EXPECT_EQ(p.Text(kBody), "Alert for <User Name> at ");
    p.Press("OK");
  });
  Open();
  EXPECT_EQ(Stored().defaultBody.View(), "Alert for %s at ");
  EXPECT_EQ(Stored().bodyKeywords[0].id, 1u);
  EXPECT_EQ(Stored().bodyKeywords[1].id, 0u);
}

TEST_F(SmtpPagesTest, AKeywordIsSelectedAndDeletedAsOneByTheMouse) {
  ExpectSheet([this](Person& p) {
    p.SelectTab(kMessageTab);
    p.ClickInText(kBody, 12);
    EXPECT_EQ(p.Selection(kBody), std::pair(10ul, 21ul));
    p.TypeHere("\b");
    EXPECT_EQ(p.Text(kBody), "Alert for  at <Time>");
    p.SelectText(kBody, 5, 16);
    EXPECT_EQ(p.Selection(kBody), std::pair(5ul, 20ul)) << "a drag into a keyword takes it whole";
    p.Press(Key::kDelete);
    EXPECT_EQ(p.Text(kBody), "Alert");
    EXPECT_EQ(Script().beeps, 0);
    p.Press("OK");
  });
  Open();
  EXPECT_EQ(Stored().defaultBody.View(), "Alert");
  EXPECT_EQ(Stored().bodyKeywords[0].id, 0u);
}

}  // namespace
}  // namespace stories
