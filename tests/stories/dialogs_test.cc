// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>

#include "platform/ui/desktop.h"
#include "platform/ui/dialog.h"
#include "platform/ui/edit.h"
#include "platform/ui/lists.h"
#include "tests/stories/story_test.h"
#include "tests/support/temporary.h"

namespace stories {
namespace {

using namespace platform::ui;
using desktops::Person;
using testing::ElementsAre;

class OkCancelDialog : public Dialog {
 public:
  OkCancelDialog(Window* parent, std::string caption) : Dialog(parent, std::move(caption)) {
    ok.SetDefault(true);
    ok.SetOnClick([this] { OnOk(); });
    cancel.SetOnClick([this] { OnCancel(); });
  }

 protected:
  LayoutNode ButtonRow() { return Row({Stretch(), Bare(ok), Bare(cancel)}); }

  Button ok{*this, kIdOk, "OK"};
  Button cancel{*this, kIdCancel, "Cancel"};
};

/// Every kind of exchanged value.
class ExchangeDialog : public OkCancelDialog {
 public:
  ExchangeDialog() : OkCancelDialog(nullptr, "Exchange") {
    for (const char* item : {"Low", "High"}) priority_combo_.Add(item);
    SetLayout(Column({Field(name_edit_), Field(count_edit_), Field(on_box_), Field(mode_group_),
                      Field(priority_combo_), ButtonRow()}));
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
};

class DialogsTest : public StoryTest {};

TEST_F(DialogsTest, ValuesGoIntoTheControlsAndBackAtOk) {
  ExchangeDialog dialog;
  Script().ExpectWindow("Exchange", [&](Person& p) {
    EXPECT_EQ(p.Text("&Name:"), "Ann");
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

TEST_F(DialogsTest, CancelLeavesTheValues) {
  ExchangeDialog dialog;
  Script().ExpectWindow("Exchange", [](Person& p) {
    p.Type("&Name:", "Bob");
    p.Press("Cancel");
  });
  EXPECT_EQ(dialog.RunModal(), kCancel);
  EXPECT_EQ(dialog.name, "Ann");
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
class NestedDialog : public OkCancelDialog {
 public:
  NestedDialog(Window* parent, int depth) : OkCancelDialog(parent, "Level " + std::to_string(depth)) {
    deeper.SetOnClick([this, depth] {
      NestedDialog next(this, depth + 1);
      result = next.RunModal();
    });
    SetLayout(Column({Bare(deeper), ButtonRow()}));
  }

  int result = 0;

 private:
  void OnCancel() override {
    const Answer answer = MessageBox("Leave?", Buttons::kYesNoCancel, MessageIcon::kQuestion, this);
    if (answer == Answer::kYes) OkCancelDialog::OnCancel();
  }

  Button deeper{*this, 410, "&Deeper..."};
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

class PreviewDialog : public FileDialog {
 public:
  PreviewDialog() : FileDialog(nullptr) {
    title = "Select Sound";
    filters = {{"Sounds", "*.wav"}, {"All Files", "*.*"}};
    SetPreviewSize(300, 60);
    Place(play, 10, 10, 80, 30);
    play.SetOnClick(
        [this] { log.push_back("play " + std::filesystem::path(Highlighted()).filename().string()); });
  }

  // The button stays at the right edge.
  void OnLayout(const Rect& whole) override {
    area = whole;
    Place(play, whole.width - 100, 10, 80, 30);
  }
  void OnFileHighlighted(const std::string& path) override {
    if (path == wanted) log.push_back("highlighted");
  }
  void OnFileAccepted(const std::string& path) override {
    log.push_back("accepted");
    FileDialog::OnFileAccepted(path);
  }

  Rect area{};
  std::string wanted;
  std::vector<std::string> log;

 private:
  Button play{*this, 420, "Play"};
};

class FileDialogsTest : public DialogsTest {
 protected:
  FileDialogsTest() { std::ofstream(file_) << "RIFF"; }

  const test_support::TemporaryDirectory folder_;
  const std::string file_ = folder_.Path() + "/beep.wav";
};

TEST_F(FileDialogsTest, AFileIsPreviewedAndChosen) {
  PreviewDialog dialog;
  dialog.wanted = file_;
  Script().ExpectFileDialog("Select Sound", file_, [](Person& p) { p.Press("Play"); });
  EXPECT_EQ(dialog.RunModal(), kOk);
  EXPECT_EQ(dialog.Path(), file_);
  EXPECT_EQ(dialog.log.front(), "highlighted");
  EXPECT_THAT(dialog.log, testing::IsSupersetOf({"play beep.wav", "accepted"}));
}

TEST_F(FileDialogsTest, ADialogOpensWithItsFileAndKnowsItsSize) {
  PreviewDialog dialog;
  dialog.wanted = dialog.initial_path = file_;
  Script().ExpectFileDialog("Select Sound", "", [&](Person& p) {
    EXPECT_GT(dialog.area.width, 300);
    p.Press("Play");
  });
  EXPECT_EQ(dialog.RunModal(), kCancel);
  EXPECT_EQ(dialog.log.front(), "highlighted");
  EXPECT_EQ(dialog.log.back(), "play beep.wav");
}

TEST_F(FileDialogsTest, AFolderIsChosen) {
  FolderDialog dialog(nullptr, "Select Folder");
  Script().ExpectFileDialog("Select Folder", folder_.Path());
  EXPECT_EQ(dialog.RunModal(), kOk);
  EXPECT_EQ(dialog.Path(), folder_.Path());
  Script().ExpectFileDialog("Select Folder", "");
  EXPECT_EQ(dialog.RunModal(), kCancel);
}

}  // namespace
}  // namespace stories
