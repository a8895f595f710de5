// SPDX-License-Identifier: MIT
#include "platform/ui/desktop.h"
#include "platform/ui/dialog.h"
#include "platform/ui/edit.h"
#include "tests/stories/story_test.h"

namespace stories {
namespace {

using namespace platform::ui;
using desktops::PersonError;

class ControlsDialog : public Dialog {
 public:
  ControlsDialog() : Dialog(nullptr, "Controls") {
    box.SetOnChange([this] { log.push_back(box.Checked() ? "on" : "off"); });
    mode.SetOnChange([this] { log.push_back("mode " + std::to_string(mode.Index())); });
    extra.SetOnClick([this] { log.push_back("extra"); });
    lock.SetOnClick([this] {
      lock.Enable(false);
      first.Enable(false);
    });
    ok.SetDefault(true);
    ok.SetOnClick([this] { OnOk(); });
    cancel.SetOnClick([this] { OnCancel(); });
    SetLayout(Column({Field(first), Field(second), Over(lines), Field(box), Group("Choices", {Field(mode)}),
                      Row({Field(address), Bare(browse)}), Row({Field(path), Bare(browse_path)}), Field(note),
                      Note("Mind the gap."), Row({Bare(extra), Bare(lock), Bare(ok), Bare(cancel)})}));
    lines.SetMultiLine(true);
    browse.SetOnClick([this] { log.push_back("address..."); });
    browse_path.SetOnClick([this] { log.push_back("path..."); });
  }

  void OnHelp(const HelpEvent& event) override {
    Desktop::Current().ShowHelpText(event.control,
                                    event.control != nullptr ? event.control->Label() : "form");
  }
  void OnPersonChange(Control& control) override { log.push_back("changed " + control.Label()); }

  std::vector<std::string> log;
  Edit first{*this, 201, "&First:"};
  Edit second{*this, 202, "&Second:"};
  Edit lines{*this, 203, "L&ines:"};
  CheckBox box{*this, 204, "&Box"};
  RadioGroup mode{*this, 205, "Mode", {"&Tone", "&Pulse"}};
  Edit address{*this, 206, "&Address:"};
  Button browse{*this, 207, "..."};
  Edit path{*this, 208, "Pat&h:"};
  Button browse_path{*this, 209, "..."};
  StaticText note{*this, 210, "A note"};
  Button extra{*this, 211, "E&xtra && more"};
  Button lock{*this, 212, "Loc&k"};
  Button ok{*this, kIdOk, "OK"};
  Button cancel{*this, kIdCancel, "Cancel"};
};

class ControlsTest : public StoryTest {
 protected:
  int Run(desktops::Script::Story story) {
    Script().ExpectWindow("Controls", std::move(story));
    return dialog_.RunModal();
  }

  ControlsDialog dialog_;
};

TEST_F(ControlsTest, ACheckBoxReportsClicksOnly) {
  dialog_.box.SetChecked(true);
  Play(dialog_, [](Person& p) {
    EXPECT_TRUE(p.IsChecked("&Box"));
    p.Check("&Box", true);
    p.Check("&Box", false);
    EXPECT_FALSE(p.IsChecked("&Box"));
    p.Press(Key::kSpace);
    EXPECT_TRUE(p.IsChecked("&Box"));
  });
  EXPECT_EQ(dialog_.log, (std::vector<std::string>{"off", "changed &Box", "on", "changed &Box"}));
}

TEST_F(ControlsTest, ARadioGroupHasNoneOrOneChosen) {
  Play(dialog_, [](Person& p) {
    EXPECT_EQ(p.ChosenOption("Mode"), "");
    p.ChooseOption("Mode", "&Pulse");
    EXPECT_EQ(p.ChosenOption("Mode"), "&Pulse");
    p.Press(Key::kUp);
    EXPECT_EQ(p.ChosenOption("Mode"), "&Tone");
    p.ChooseOption("Mode", "&Tone");
  });
  EXPECT_EQ(dialog_.log, (std::vector<std::string>{"mode 1", "changed Mode", "mode 0", "changed Mode",
                                                   "mode 0", "changed Mode"}))
      << "a click on the chosen one is told too";
}

TEST_F(ControlsTest, AccessKeysPressOrFocus) {
  Play(dialog_, [](Person& p) {
    p.AccessKey('s');
    EXPECT_EQ(p.FocusedLabel(), "&Second:");
    p.AccessKey('b');
    EXPECT_TRUE(p.IsChecked("&Box"));
    p.AccessKey('x');
    p.AccessKey('p');
    EXPECT_EQ(p.ChosenOption("Mode"), "&Pulse");
    EXPECT_THROW(p.AccessKey('q'), PersonError);
  });
  EXPECT_EQ(dialog_.log, (std::vector<std::string>{"on", "changed &Box", "extra", "mode 1", "changed Mode"}));
}

TEST_F(ControlsTest, TabFollowsTheOrderOfConstruction) {
  dialog_.second.Enable(false);
  Play(dialog_, [](Person& p) {
    EXPECT_EQ(p.FocusedLabel(), "&First:") << "the first that takes it has the focus at the start";
    p.Press(Key::kTab);
    EXPECT_EQ(p.FocusedLabel(), "L&ines:") << "a disabled one is passed over";
    p.Focus("Pat&h:");
    p.Press(Key::kTab);
    EXPECT_EQ(p.FocusedLabel(), "...");
    p.Press(Key::kTab);
    EXPECT_EQ(p.FocusedLabel(), "E&xtra && more") << "a static text is passed over";
    p.Focus("Cancel");
    p.Press(Key::kTab);
    EXPECT_EQ(p.FocusedLabel(), "&First:");
  });
}

TEST_F(ControlsTest, TabIntoAFieldSelectsItsText) {
  dialog_.second.SetText("all of it");
  Play(dialog_, [](Person& p) {
    p.Press(Key::kTab);
    EXPECT_EQ(p.Selection("&Second:"), (std::pair<std::size_t, std::size_t>{0, 9}));
    p.TypeHere("new");
    EXPECT_EQ(p.Text("&Second:"), "new");
  });
}

TEST_F(ControlsTest, EnterEscapeAndTheCloseBoxEndTheDialog) {
  const auto enter_on = [](const char* label) {
    return [label](Person& p) {
      p.Focus(label);
      p.Press(Key::kEnter);
    };
  };
  EXPECT_EQ(Run(enter_on("&Second:")), kOk) << "the default button";
  EXPECT_EQ(Run(enter_on("Cancel")), kCancel) << "the button with the focus";
  EXPECT_EQ(Run([&](Person& p) {
              enter_on("E&xtra && more")(p);
              enter_on("L&ines:")(p);
              EXPECT_EQ(p.Text("L&ines:"), "\r\n");
              p.Press(Key::kEscape);
            }),
            kCancel);
  EXPECT_EQ(Run([](Person& p) { p.CloseWindow(); }), kCancel);
  EXPECT_EQ(dialog_.log, (std::vector<std::string>{"extra", "changed L&ines:"}));
}

TEST_F(ControlsTest, WhatIsHiddenOrDisabledCannotBeTouched) {
  dialog_.second.Show(false);
  dialog_.box.Enable(false);
  dialog_.extra.Enable(false);
  dialog_.mode.Show(false);
  Play(dialog_, [](Person& p) {
    EXPECT_FALSE(p.IsVisible("&Second:"));
    EXPECT_FALSE(p.IsEnabled("&Box"));
    EXPECT_THROW(p.Type("&Second:", "x"), PersonError);
    EXPECT_THROW(p.Check("&Box", true), PersonError);
    EXPECT_THROW(p.Press("E&xtra && more"), PersonError);
    EXPECT_THROW(p.ChooseOption("Mode", "&Tone"), PersonError);
    EXPECT_THROW(p.AccessKey('b'), PersonError);
    EXPECT_THROW(p.Press("No such button"), PersonError);
  });
  EXPECT_TRUE(dialog_.log.empty());
}

TEST_F(ControlsTest, AControlThatGoesOutOfReachPassesTheFocusOn) {
  Play(dialog_, [](Person& p) {
    p.Press("Loc&k");
    EXPECT_FALSE(p.IsEnabled("Loc&k"));
    EXPECT_EQ(p.FocusedLabel(), "OK");
  });
}

TEST_F(ControlsTest, TheProgramMovesTheFocus) {
  Play(dialog_, [this](Person& p) {
    dialog_.path.SetFocus();
    EXPECT_EQ(p.FocusedLabel(), "Pat&h:");
    p.TypeHere("z");
    EXPECT_EQ(p.Text("Pat&h:"), "z");
    dialog_.note.SetFocus();
    EXPECT_EQ(p.FocusedLabel(), "Pat&h:") << "a static text takes none";
  });
}

}  // namespace
}  // namespace stories
