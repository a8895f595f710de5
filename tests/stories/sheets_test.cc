// SPDX-License-Identifier: MIT
#include "platform/ui/edit.h"
#include "platform/ui/message.h"
#include "platform/ui/property_sheet.h"
#include "tests/stories/story_test.h"

namespace stories {
namespace {

using namespace platform::ui;
using desktops::PersonError;
using Log = std::vector<std::string>;

class LoggedPage : public PropertyPage {
 public:
  LoggedPage(std::string caption, Log& log) : PropertyPage(std::move(caption)), log_(log) {
    SetLayout(Column({Field(edit), Field(count_edit)}));
  }

  bool OnSetActive() override { return Note("active", !refuse_active); }
  bool OnKillActive() override { return PropertyPage::OnKillActive() && Note("left", true); }
  bool OnApply() override { return Note("apply", !refuse_apply); }
  bool OnWizardFinish() override { return Note("finish", !refuse_finish); }
  void OnPersonChange(Control&) override { SetModified(true); }

  bool refuse_active = false, refuse_apply = false, refuse_finish = false;
  std::uint32_t count = 1;

 private:
  void OnInitDialog() override {
    Note("init", true);
    PropertyPage::OnInitDialog();
  }
  void Exchange(DataExchange& x) override { x.Integer(count_edit, count, 1, 9); }

  bool Note(const std::string& what, bool answer) {
    log_.push_back(Label() + " " + what);
    return answer;
  }

  Log& log_;
  Edit edit{*this, 501, "&Text:"};
  Edit count_edit{*this, 502, "&Count:"};
};

class LoggedSheet : public PropertySheet {
 public:
  explicit LoggedSheet(int selected_page = 0) : PropertySheet("Sheet", nullptr, selected_page) {
    AddPage(general);
    AddPage(message);
    AddPage(modems);
  }

  Log log;
  bool consume = false;
  LoggedPage general{"General", log};
  LoggedPage message{"Message", log};
  LoggedPage modems{"Modems", log};

 private:
  bool OnCommand(SheetButton) override {
    log.push_back("command");
    return consume;
  }
  void OnDestroyed() override { log.push_back("destroyed"); }
};

class SheetsTest : public StoryTest {
 protected:
  int Run(LoggedSheet& sheet, desktops::Script::Story story) {
    Script().ExpectWindow("Sheet", std::move(story));
    return sheet.RunModal();
  }
};

TEST_F(SheetsTest, APageComesToLifeWhenItsTabIsSelected) {
  LoggedSheet sheet;
  const int result = Run(sheet, [&](Person& p) {
    EXPECT_THAT(p.Tabs(), ElementsAre("General", "Message", "Modems"));
    EXPECT_THAT(sheet.log, ElementsAre("General init", "General active"));
    sheet.log.clear();
    p.SelectTab("Message");
    EXPECT_THAT(sheet.log, ElementsAre("General left", "Message init", "Message active"));
    sheet.log.clear();
    p.SelectTab("General");
    EXPECT_THAT(sheet.log, ElementsAre("Message left", "General active"));
    sheet.log.clear();
    p.Press("OK");
  });
  EXPECT_EQ(result, kOk);
  EXPECT_THAT(sheet.log,
              ElementsAre("command", "General left", "General apply", "Message apply", "destroyed"));
  EXPECT_FALSE(sheet.general.Created()) << "the windows are gone";
  EXPECT_FALSE(sheet.modems.Created());
}

TEST_F(SheetsTest, ASheetMayOpenOnAnotherPage) {
  LoggedSheet sheet(2);
  Run(sheet, [&](Person& p) {
    EXPECT_THAT(sheet.log, ElementsAre("Modems init", "Modems active"));
    EXPECT_EQ(p.Text("&Count:"), "1");
    p.Press("Cancel");
  });
}

TEST_F(SheetsTest, ApplyIsEnabledWhileAPageIsChanged) {
  LoggedSheet sheet;
  Run(sheet, [&](Person& p) {
    EXPECT_FALSE(p.IsEnabled("Apply"));
    EXPECT_THROW(p.Press("Apply"), PersonError);
    p.Type("&Text:", "x");
    EXPECT_TRUE(p.IsEnabled("Apply"));
    p.SelectTab("Message");
    EXPECT_TRUE(p.IsEnabled("Apply")) << "also while another page is in front";
    sheet.log.clear();
    p.Press("Apply");
    EXPECT_THAT(sheet.log, ElementsAre("command", "Message left", "General apply", "Message apply"));
    EXPECT_FALSE(p.IsEnabled("Apply"));
    p.Type("&Text:", "y");
    p.AccessKey('A');
    EXPECT_FALSE(p.IsEnabled("Apply"));
    p.Type("&Text:", "z");
    sheet.message.SetModified(false);
    EXPECT_FALSE(p.IsEnabled("Apply"));
    p.Press("Cancel");
  });
  EXPECT_EQ(sheet.Result(), kCancel);
}

TEST_F(SheetsTest, APressThatIsConsumedDoesNothingUnlessItIsTheProgramsOwn) {
  LoggedSheet sheet;
  Run(sheet, [&](Person& p) {
    p.Type("&Text:", "x");
    sheet.consume = true;
    sheet.log.clear();
    p.Press("OK");
    p.Press("Apply");
    EXPECT_THAT(sheet.log, ElementsAre("command", "command"));
    EXPECT_TRUE(p.IsEnabled("Apply"));
    sheet.log.clear();
    sheet.Press(SheetButton::kApply);
    EXPECT_THAT(sheet.log, ElementsAre("General left", "General apply"));
    EXPECT_FALSE(p.IsEnabled("Apply"));
    sheet.Press(SheetButton::kApply);
    EXPECT_EQ(sheet.log.size(), 2u) << "a disabled button does nothing";
    sheet.Press(SheetButton::kCancel);
  });
}

TEST_F(SheetsTest, ARefusedValueKeepsThePageInFront) {
  LoggedSheet sheet;
  Script().ExpectWindow("Sheet", [](Person& p) {
    p.Type("&Count:", "10");
    p.SelectTab("Message");
    EXPECT_EQ(p.Text("&Count:"), "10");
    p.Press("OK");
    p.Type("&Count:", "9");
    p.SelectTab("Message");
    EXPECT_EQ(p.Text("&Count:"), "1");
    p.Press("Cancel");
  });
  for (int i = 0; i < 2; ++i) Script().ExpectMessage("Please enter an integer between 1 and 9.");
  EXPECT_EQ(sheet.RunModal(), kCancel);
  EXPECT_EQ(sheet.general.count, 9u);
}

TEST_F(SheetsTest, APageThatRefusesToApplyKeepsTheSheetOpen) {
  LoggedSheet sheet;
  sheet.general.refuse_apply = true;
  const int result = Run(sheet, [&](Person& p) {
    p.Type("&Text:", "x");
    p.SelectTab("Message");
    sheet.log.clear();
    p.Press("OK");
    EXPECT_THAT(sheet.log, ElementsAre("command", "Message left", "General apply"))
        << "the pages after it hear nothing";
    EXPECT_TRUE(p.IsEnabled("Apply"));
    sheet.general.refuse_apply = false;
    p.Press("OK");
  });
  EXPECT_EQ(result, kOk);
}

TEST_F(SheetsTest, APageMayRefuseToBeShown) {
  LoggedSheet sheet;
  sheet.message.refuse_active = true;
  Run(sheet, [&](Person& p) {
    p.SelectTab("Message");
    EXPECT_EQ(sheet.ActivePage(), &sheet.general);
    p.SelectTab("Modems");
    EXPECT_EQ(sheet.ActivePage(), &sheet.modems);
    p.Press("Cancel");
  });
}

TEST_F(SheetsTest, EscapeAndTheCloseBoxCancelAndEnterIsOk) {
  LoggedSheet sheet;
  EXPECT_EQ(Run(sheet, [](Person& p) { p.Press(Key::kEscape); }), kCancel);
  EXPECT_EQ(sheet.log.back(), "destroyed");
  EXPECT_EQ(Run(sheet, [](Person& p) { p.CloseWindow(); }), kCancel);
  EXPECT_EQ(Run(sheet, [](Person& p) { p.Press(Key::kEnter); }), kOk);
}

TEST_F(SheetsTest, AWizardGoesBackAndForth) {
  LoggedSheet sheet;
  sheet.SetWizardMode();
  sheet.SetWizardButtons(kWizardNext);
  const int result = Run(sheet, [&](Person& p) {
    EXPECT_TRUE(p.Tabs().empty());
    EXPECT_FALSE(p.IsEnabled("< Back"));
    EXPECT_FALSE(p.IsVisible("Finish"));
    EXPECT_FALSE(p.IsVisible("Apply"));
    p.Press(Key::kEnter);
    EXPECT_EQ(sheet.ActivePage(), &sheet.message);
    sheet.SetWizardButtons(kWizardBack | kWizardNext | kWizardFinish);
    EXPECT_TRUE(p.IsVisible("Next >"));
    p.Press("< Back");
    EXPECT_EQ(sheet.ActivePage(), &sheet.general);
    p.Press("Next >");
    p.Press("Next >");
    EXPECT_EQ(sheet.ActivePage(), &sheet.modems);
    sheet.SetWizardButtons(kWizardBack | kWizardDisabledFinish);
    EXPECT_TRUE(p.IsVisible("Finish"));
    EXPECT_FALSE(p.IsVisible("Next >")) << "Finish stands in its place";
    EXPECT_THROW(p.Press("Finish"), PersonError);
    sheet.SetWizardButtons(kWizardBack | kWizardFinish);
    sheet.log.clear();
    sheet.modems.refuse_finish = true;
    p.Press("Finish");
    sheet.modems.refuse_finish = false;
    p.Press(Key::kEnter);
  });
  EXPECT_EQ(result, kOk);
  EXPECT_THAT(sheet.log, ElementsAre("command", "Modems finish", "command", "Modems finish", "destroyed"));
}

}  // namespace
}  // namespace stories
