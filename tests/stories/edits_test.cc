// SPDX-License-Identifier: MIT
#include "platform/ui/desktop.h"
#include "platform/ui/dialog.h"
#include "platform/ui/edit.h"
#include "platform/ui/spin.h"
#include "tests/stories/story_test.h"

namespace stories {
namespace {

using namespace platform::ui;
using desktops::Person;
using Range = std::pair<std::size_t, std::size_t>;

/// Refuses "x" when it is typed and leaves it out of what is pasted.
class PickyEdit : public Edit {
 public:
  using Edit::Edit;
  int focus_gained = 0, focus_lost = 0, mouse_ups = 0;
  std::vector<Key> keys_up;

  void OnChar(char32_t c) override {
    if (c == U'x') return Desktop::Current().Beep();
    Edit::OnChar(c);
  }
  void OnPaste(std::string_view text) override {
    std::string kept(text);
    std::erase(kept, 'x');
    Edit::OnPaste(kept);
  }
  void OnSetFocus() override { ++focus_gained; }
  void OnKillFocus() override { ++focus_lost; }
  void OnMouseUp() override { ++mouse_ups; }
  void OnKeyUp(Key key) override { keys_up.push_back(key); }
};

class EditsDialog : public Dialog {
 public:
  EditsDialog() : Dialog(nullptr, "Edits") {
    code.SetLimit(4);
    number.SetDigitsOnly(true);
    secret.SetMasked(true);
    body.SetMultiLine(true);
    fixed.SetReadOnly(true);
    day_spin.SetRange(1, 31);
    level_spin.SetRange(0, 2);
    ok.SetDefault(true);
    ok.SetOnClick([this] { OnOk(); });
    name.SetOnChange([this] { ++changes; });
    SetLayout(Column({Field(name), Field(code), Row({Field(number)}), Field(secret), Over(body), Field(fixed),
                      Field(picky), Row({Field(day), Bare(day_spin)}), Row({Field(level), Bare(level_spin)}),
                      Bare(ok)}));
  }

  void OnPersonChange(Control& control) override { changed.push_back(control.Label()); }

  int changes = 0;
  std::vector<std::string> changed;
  Edit name{*this, 101, "&Name:"};
  Edit code{*this, 102, "&Code:"};
  Edit number{*this, 103, "N&umber:"};
  Edit secret{*this, 104, "&Secret:"};
  Edit body{*this, 105, "&Body:"};
  Edit fixed{*this, 106, "&Fixed:"};
  PickyEdit picky{*this, 107, "&Picky:"};
  Edit day{*this, 108, "&Day:"};
  Spin day_spin{*this, 109, day, true};
  Edit level{*this, 110, "&Level:"};
  Spin level_spin{*this, 111, level, false};
  Button ok{*this, kIdOk, "OK"};
};

class EditsTest : public StoryTest {
 protected:
  void Run(desktops::Script::Story story) {
    Script().ExpectWindow("Edits", [story](Person& p) {
      story(p);
      p.Press("OK");
    });
    EXPECT_EQ(dialog_.RunModal(), kOk);
  }

  EditsDialog dialog_;
};

TEST_F(EditsTest, TypingReplacesTheTextAndReportsEachChange) {
  dialog_.name.SetText("before");
  Run([](Person& p) { p.Type("&Name:", "Zo\u00eb"); });
  EXPECT_EQ(dialog_.name.Text(), "Zo\u00eb");
  EXPECT_EQ(dialog_.changes, 3) << "one for each character; the program's own text reports nothing";
  EXPECT_EQ(dialog_.changed, std::vector<std::string>(3, "&Name:"));
}

TEST_F(EditsTest, EmptyTypingErasesTheText) {
  dialog_.name.SetText("before");
  Run([](Person& p) {
    p.Type("&Name:", "");
    EXPECT_EQ(p.Text("&Name:"), "");
  });
}

TEST_F(EditsTest, TheLimitCountsBytesAndCutsNoCharacter) {
  Run([](Person& p) {
    p.Type("&Code:", "abcdefg");
    EXPECT_EQ(p.Text("&Code:"), "abcd");
    p.Type("&Code:", "abc\u00e9");
    EXPECT_EQ(p.Text("&Code:"), "abc") << "two bytes do not fit into one";
    p.Type("&Code:", "");
    p.Paste("&Code:", "\u20ac\u20ac");
    EXPECT_EQ(p.Text("&Code:"), "\u20ac");
    p.SelectText("&Code:", 0, 3);
    p.TypeHere("12345");
    EXPECT_EQ(p.Text("&Code:"), "1234") << "what is selected makes room";
  });
}

TEST_F(EditsTest, TheProgramMayExceedTheLimitAndAPersonMayThenOnlyErase) {
  dialog_.code.SetText("longer");
  Run([](Person& p) {
    p.Focus("&Code:");
    p.Press(Key::kEnd);
    p.TypeHere("s");
    EXPECT_EQ(p.Text("&Code:"), "longer");
    p.SelectText("&Code:", 0, 1);
    p.TypeHere("s");
    EXPECT_EQ(p.Text("&Code:"), "longer") << "what does not fit does not erase the selection either";
    p.Press(Key::kEnd);
    p.TypeHere("\b\b\bg");
    EXPECT_EQ(p.Text("&Code:"), "long");
  });
}

TEST_F(EditsTest, ANumberFieldTakesDigitsOnly) {
  Run([](Person& p) {
    p.Type("N&umber:", "1a2-\u0663 3");
    EXPECT_EQ(p.Text("N&umber:"), "123");
    p.Type("N&umber:", "");
    p.Paste("N&umber:", "7 8\n9");
    EXPECT_EQ(p.Text("N&umber:"), "78");
  });
}

TEST_F(EditsTest, AMaskedFieldShowsNothingAndGivesNothingToTheClipboard) {
  Run([](Person& p) {
    p.Type("&Secret:", "p\u00e4ss");
    EXPECT_EQ(p.Text("&Secret:"), "****");
    Desktop::Current().SetClipboardText("untouched");
    p.SelectText("&Secret:", 0, 5);
    p.TypeHere("\x03\x18");
    EXPECT_EQ(p.Text("&Secret:"), "****");
  });
  EXPECT_EQ(dialog_.secret.Text(), "p\u00e4ss");
  EXPECT_EQ(Desktop::Current().ClipboardText(), "untouched");
}

TEST_F(EditsTest, EnterStartsALineInAMultiLineField) {
  Run([](Person& p) {
    p.Type("&Body:", "one\ntwo");
    EXPECT_EQ(p.Text("&Body:"), "one\r\ntwo");
    p.Press(Key::kHome);
    EXPECT_EQ(p.Selection("&Body:"), (Range{5, 5}));
    p.Press(Key::kLeft);
    EXPECT_EQ(p.Selection("&Body:"), (Range{3, 3})) << "a line break is one step";
    p.Press(Key::kDelete);
    EXPECT_EQ(p.Text("&Body:"), "onetwo");
    p.TypeHere("\n\n\b");
    EXPECT_EQ(p.Text("&Body:"), "one\r\ntwo");
  });
}

TEST_F(EditsTest, UpAndDownKeepTheColumn) {
  dialog_.body.SetText("ooooo\r\noooooo\r\n");  // one letter, as widths count; lines begin at bytes 0, 7, 15
  Run([](Person& p) {
    p.ClickInText("&Body:", 3);
    p.Press(Key::kDown);
    EXPECT_EQ(p.Selection("&Body:"), (Range{10, 10}));
    p.Press(Key::kDown);
    EXPECT_EQ(p.Selection("&Body:"), (Range{15, 15})) << "a shorter line is left at its end";
    p.ClickInText("&Body:", 12);
    p.Press(Key::kUp);
    EXPECT_EQ(p.Selection("&Body:"), (Range{5, 5}));
    p.Press(Key::kEnd);
    EXPECT_EQ(p.Selection("&Body:"), (Range{5, 5}));
  });
}

TEST_F(EditsTest, ALineBreakIsNeverCutInTwo) {
  dialog_.body.SetLimit(4);
  Run([this](Person& p) {
    p.Type("&Body:", "abc\n");
    EXPECT_EQ(p.Text("&Body:"), "abc") << "one byte is left, a line break takes two";
    p.Paste("&Body:", "\nx");
    EXPECT_EQ(p.Text("&Body:"), "abc");
    dialog_.body.SetText("a\r\nb");
    dialog_.body.SetSelection(2, 2);
    EXPECT_EQ(p.Selection("&Body:"), (Range{1, 1}));
  });
}

TEST_F(EditsTest, PasteKeepsWholeLinesOnlyWhereTheyFit) {
  Run([](Person& p) {
    p.Paste("&Name:", "first\nsecond");
    EXPECT_EQ(p.Text("&Name:"), "first");
    p.Paste("&Body:", "a\nb\r\nc");
    EXPECT_EQ(p.Text("&Body:"), "a\r\nb\r\nc");
  });
}

TEST_F(EditsTest, PasteReplacesTheSelection) {
  dialog_.name.SetText("a long name");
  Run([](Person& p) {
    p.SelectText("&Name:", 2, 6);
    p.Paste("&Name:", "short");
    EXPECT_EQ(p.Text("&Name:"), "a short name");
    EXPECT_EQ(p.Selection("&Name:"), (Range{7, 7}));
  });
}

TEST_F(EditsTest, CopyCutAndUndoByControlKeys) {
  dialog_.name.SetText("hello");
  Run([](Person& p) {
    p.SelectText("&Name:", 1, 3);
    p.TypeHere("\x03");
    EXPECT_EQ(Desktop::Current().ClipboardText(), "el");
    p.TypeHere("\x18");
    EXPECT_EQ(p.Text("&Name:"), "hlo");
    p.TypeHere("ipp");
    p.TypeHere("\x1a");
    EXPECT_EQ(p.Text("&Name:"), "hlo") << "a run of typing is one step";
    p.TypeHere("\x1a");
    EXPECT_EQ(p.Text("&Name:"), "hello");
    p.TypeHere("\x1a\x01");
    EXPECT_EQ(p.Text("&Name:"), "hello") << "nothing is left to undo";
    EXPECT_EQ(p.Selection("&Name:"), (Range{0, 5}));
  });
}

TEST_F(EditsTest, WithoutAClipboardTextPasteDoesNothing) {
  dialog_.name.SetText("kept");
  Run([this](Person& p) {
    Desk().ClearClipboard();
    p.SelectText("&Name:", 0, 4);
    p.TypeHere("\x16");
    EXPECT_EQ(p.Text("&Name:"), "kept");
  });
  EXPECT_EQ(dialog_.changes, 0);
}

TEST_F(EditsTest, CaretKeysAndBackspaceGoByCharacters) {
  dialog_.name.SetText("a\u00e9\u20acz");  // at bytes 0, 1, 3, 6
  Run([](Person& p) {
    p.ClickInText("&Name:", 6);
    p.Press(Key::kLeft);
    EXPECT_EQ(p.Selection("&Name:"), (Range{3, 3}));
    p.TypeHere("\b");
    EXPECT_EQ(p.Text("&Name:"), "a\u20acz");
    p.Press(Key::kRight);
    EXPECT_EQ(p.Selection("&Name:"), (Range{4, 4}));
    p.Press(Key::kHome);
    p.Press(Key::kDelete);
    EXPECT_EQ(p.Text("&Name:"), "\u20acz");
  });
}

TEST_F(EditsTest, AnArrowLeavesTheSelectionAtItsSide) {
  dialog_.name.SetText("0123456789");
  Run([](Person& p) {
    p.SelectText("&Name:", 2, 6);
    p.Press(Key::kLeft);
    EXPECT_EQ(p.Selection("&Name:"), (Range{2, 2}));
    p.SelectText("&Name:", 2, 6);
    p.Press(Key::kRight);
    EXPECT_EQ(p.Selection("&Name:"), (Range{6, 6}));
  });
}

TEST_F(EditsTest, AReadOnlyFieldCanBeCopiedFromOnly) {
  dialog_.fixed.SetText("fixed");
  Run([](Person& p) {
    p.SelectText("&Fixed:", 0, 5);
    p.TypeHere("\x03x\b\x16");
    p.Press(Key::kDelete);
    EXPECT_EQ(p.Text("&Fixed:"), "fixed");
  });
  EXPECT_EQ(Desktop::Current().ClipboardText(), "fixed");
  EXPECT_TRUE(dialog_.changed.empty());
}

TEST_F(EditsTest, AFilterSeesWhatIsTypedAndWhatIsPasted) {
  Run([](Person& p) {
    p.Type("&Picky:", "axbx");
    EXPECT_EQ(p.Text("&Picky:"), "ab");
    p.Paste("&Picky:", "xcx");
    EXPECT_EQ(p.Text("&Picky:"), "abc");
  });
  EXPECT_EQ(Script().beeps, 2);
}

TEST_F(EditsTest, AFieldHearsOfFocusMouseAndKeys) {
  Run([](Person& p) {
    p.ClickInText("&Picky:", 0);
    p.Press(Key::kRight);
    p.Press(Key::kEnd);
    p.Focus("&Name:");
  });
  EXPECT_EQ(dialog_.picky.focus_gained, 1);
  EXPECT_EQ(dialog_.picky.focus_lost, 1);
  EXPECT_EQ(dialog_.picky.mouse_ups, 1);
  EXPECT_EQ(dialog_.picky.keys_up, (std::vector{Key::kRight, Key::kEnd}));
}

TEST_F(EditsTest, AProgramsReplacementGoesToTheSelectionUnreported) {
  dialog_.name.SetText("Alert at noon");
  Run([this](Person& p) {
    p.SelectText("&Name:", 9, 13);
    dialog_.name.ReplaceSelection("<Time> ");
    EXPECT_EQ(p.Text("&Name:"), "Alert at <Time> ");
    EXPECT_EQ(p.Selection("&Name:"), (Range{16, 16}));
    EXPECT_EQ(dialog_.changes, 0);
    p.TypeHere("!");
    EXPECT_EQ(p.Text("&Name:"), "Alert at <Time> !");
  });
}

TEST_F(EditsTest, ASpinComesBackIntoItsRange) {
  dialog_.day.SetText("99");
  dialog_.level.SetText("-7");
  Run([](Person& p) {
    p.StepSpin("&Day:", -1);
    EXPECT_EQ(p.Text("&Day:"), "30");
    p.StepSpin("&Level:", +1);
    EXPECT_EQ(p.Text("&Level:"), "1");
  });
}

TEST_F(EditsTest, ASpinStepsWithinItsRange) {
  dialog_.day.SetText("30");
  dialog_.level.SetText("nothing");
  Run([](Person& p) {
    p.StepSpin("&Day:", +1);
    p.StepSpin("&Day:", +1);
    EXPECT_EQ(p.Text("&Day:"), "1") << "wraps";
    p.StepSpin("&Day:", -1);
    EXPECT_EQ(p.Text("&Day:"), "31");
    p.StepSpin("&Level:", +1);
    EXPECT_EQ(p.Text("&Level:"), "1") << "a text that is no number counts as the lower end";
    p.StepSpin("&Level:", +1);
    p.StepSpin("&Level:", +1);
    EXPECT_EQ(p.Text("&Level:"), "2") << "stays";
  });
  EXPECT_EQ(dialog_.changed, (std::vector<std::string>{"&Day:", "&Day:", "&Day:", "&Level:", "&Level:"}));
}

}  // namespace
}  // namespace stories
