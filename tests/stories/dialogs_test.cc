// SPDX-License-Identifier: MIT
#include "platform/ui/desktop.h"
#include "platform/ui/dialog.h"
#include "platform/ui/edit.h"
#include "platform/ui/lists.h"
#include "tests/stories/story_test.h"

namespace stories {
namespace {

using namespace platform::ui;

/// Every kind of exchanged value.
class ExchangeDialog : public Dialog {
 public:
  ExchangeDialog() : Dialog(nullptr, "Exchange") {
    for (const char* item : {"Low", "High"}) priority_combo_.Add(item);
    SetLayout(Column({Field(name_edit_), Field(count_edit_), Field(on_box_), Field(mode_group_),
                      Field(priority_combo_), buttons_.Row()}));
  }

  std::string name = "Ann", priority = "high";
  std::uint32_t count = 5;
  bool on = true;
  int mode = 1;

 private:
  void Exchange(DataExchange& x) override {
    x.Text(name_edit_, name);
    x.Integer(count_edit_, count, 1, 4294967295u);
    x.Check(on_box_, on);
    x.Radio(mode_group_, mode);
    x.Text(priority_combo_, priority);
  }

  Edit name_edit_{*this, 401, "&Name:"};
  Edit count_edit_{*this, 402, "&Count:"};
  CheckBox on_box_{*this, 403, "&On"};
  RadioGroup mode_group_{*this, 404, "Mode", {"A", "B"}};
  ComboBox priority_combo_{*this, 405, "&Priority:"};
  OkCancelButtons buttons_{*this};
};

class DialogsTest : public StoryTest {};

TEST_F(DialogsTest, ValuesGoIntoTheControlsAndBackAtOk) {
  ExchangeDialog dialog;
  Script().ExpectWindow("Exchange", [](Person& p) {
    p.Type("&Name:", "Cy");
    p.Press("Cancel");
  });
  EXPECT_EQ(dialog.RunModal(), kCancel);
  Script().ExpectWindow("Exchange", [&](Person& p) {
    EXPECT_EQ(p.Text("&Name:"), "Ann") << "what was cancelled is gone";
    EXPECT_EQ(p.Text("&Count:"), "5");
    EXPECT_TRUE(p.IsChecked("&On"));
    EXPECT_EQ(p.ChosenOption("Mode"), "B");
    EXPECT_EQ(p.Text("&Priority:"), "High") << "found without regard to case";
    p.Type("&Name:", "Bob");
    p.Type("&Count:", "4294967295");
    p.Check("&On", false);
    p.ChooseOption("Mode", "A");
    p.Choose("&Priority:", "Low");
    EXPECT_EQ(dialog.name, "Ann") << "members wait for OK";
    p.Press("OK");
  });
  EXPECT_EQ(dialog.RunModal(), kOk);
  EXPECT_EQ(dialog.name, "Bob");
  EXPECT_EQ(dialog.count, 4294967295u);
  EXPECT_FALSE(dialog.on);
  EXPECT_EQ(dialog.mode, 0);
  EXPECT_EQ(dialog.priority, "Low");
}

TEST_F(DialogsTest, ANumberOutOfRangeKeepsTheDialogOpen) {
  const std::string refusal = "Please enter an integer between 1 and 4294967295.";
  const std::vector<std::string> refused = {"0", "4294967296", "-1", "1x", "", " ", "99999999999999999999"};
  ExchangeDialog dialog;
  Script().ExpectWindow("Exchange", [&](Person& p) {
    p.Check("&On", false);
    for (const std::string& text : refused) {
      SCOPED_TRACE(text);
      p.Type("&Count:", text);
      p.Press("OK");
      EXPECT_EQ(p.FocusedLabel(), "&Count:");
      EXPECT_EQ(p.Selection("&Count:"), (std::pair<std::size_t, std::size_t>{0, text.size()}));
    }
    EXPECT_TRUE(dialog.on) << "after a refused value nothing more is exchanged";
    p.Type("&Count:", " 7 ");
    p.Press("OK");
  });
  for (std::size_t i = 0; i < refused.size(); ++i) Script().ExpectMessage(refusal);
  EXPECT_EQ(dialog.RunModal(), kOk);
  EXPECT_EQ(dialog.count, 7u);
}

/// Opens another of its kind, asks before it is left, and records what comes about.
class NestedDialog : public Dialog {
 public:
  NestedDialog(Window* parent, int depth) : Dialog(parent, "Level " + std::to_string(depth)) {
    deeper.SetOnClick([this, depth] {
      NestedDialog next(this, depth + 1);
      result = next.RunModal();
    });
    SetLayout(Column({Bare(deeper), buttons.Row()}));
  }

  int result = 0;

 private:
  void OnCancel() override {
    const Answer answer = MessageBox("Leave?", Buttons::kYesNoCancel, MessageIcon::kQuestion, this);
    if (answer == Answer::kYes) Dialog::OnCancel();
  }

  Button deeper{*this, 410, "&Deeper..."};
  OkCancelButtons buttons{*this};
};

TEST_F(DialogsTest, WindowsAndMessagesNest) {
  NestedDialog dialog(nullptr, 1);
  Script().ExpectWindow("Level 1", [&](Person& p) {
    p.Press("&Deeper...");
    EXPECT_EQ(dialog.result, kCancel);
    p.Press("OK");
  });
  Script().ExpectWindow("Level 2", [](Person& p) {
    p.Press("&Deeper...");
    p.Press("Cancel");
    p.Press(Key::kEscape);
  });
  Script().ExpectWindow("Level 3", [](Person& p) { p.Press("OK"); });
  Script().ExpectMessage("Leave?", Answer::kNo);
  Script().ExpectMessage("Leave?", Answer::kYes);
  EXPECT_EQ(dialog.RunModal(), kOk);
  EXPECT_THAT(Script().messages, ElementsAre("Leave?", "Leave?"));
}

/// Ends before it was seen.
class ShyDialog : public Dialog {
 public:
  ShyDialog() : Dialog(nullptr, "Shy") {}

 private:
  void OnInitDialog() override {
    EndDialog(kOk);
    EndDialog(kCancel);
  }
};

TEST_F(DialogsTest, ADialogMayEndWhileItOpens) {
  ShyDialog dialog;
  EXPECT_EQ(dialog.RunModal(), kOk) << "the first result stands";
  EXPECT_EQ(dialog.RunModal(), kOk) << "and it may run once more";
}

TEST_F(DialogsTest, PostedTasksRunBetweenActionsInTheForegroundWindow) {
  NestedDialog dialog(nullptr, 1);
  Script().ExpectWindow("Level 1", [&](Person& p) {
    EXPECT_EQ(Desktop::Current().ForegroundWindow(), &dialog);
    Desktop::Current().Post([&] { dialog.SetLabel("Level one"); });
    p.Focus("Cancel");
    EXPECT_EQ(p.Caption(), "Level one");
    p.Press("OK");
  });
  dialog.RunModal();
}

}  // namespace
}  // namespace stories
