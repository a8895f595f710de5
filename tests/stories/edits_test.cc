// SPDX-License-Identifier: MIT
#include <variant>

#include "platform/ui/desktop.h"
#include "platform/ui/dialog.h"
#include "platform/ui/edit.h"
#include "platform/ui/spin.h"
#include "tests/stories/story_test.h"
#include "tests/support/marked_text.h"

namespace stories {
namespace {

using namespace platform::ui;
using test_support::Marked;

/// Keeps what it hears of.
class ListeningEdit : public Edit {
 public:
  using Edit::Edit;
  int focus_gained = 0, focus_lost = 0, mouse_ups = 0;
  std::vector<Key> keys_up;
  std::vector<std::string> pasted;

  void OnPaste(std::string_view text) override { pasted.emplace_back(text); }
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
                      Field(listening), Row({Field(day), Bare(day_spin)}),
                      Row({Field(level), Bare(level_spin)}), Bare(ok)}));
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
  ListeningEdit listening{*this, 107, "&Listening:"};
  Edit day{*this, 108, "&Day:"};
  Spin day_spin{*this, 109, day, true};
  Edit level{*this, 110, "&Level:"};
  Spin level_spin{*this, 111, level, false};
  Button ok{*this, kIdOk, "OK"};
};

class EditsTest : public StoryTest {
 protected:
  void Run(const desktops::Script::Story& story) { Play(dialog_, story); }

  EditsDialog dialog_;
};

struct Pasted {
  std::string text;
};
using Input = std::variant<std::string, Key, Pasted>;

/// What a person does in a field, and what it shows before and after.
struct Step {
  const char* what;
  Edit EditsDialog::*field;
  std::string before;
  std::vector<Input> inputs;
  std::string after;
};

TEST_F(EditsTest, KeysAndPastesDoTheirPart) {
  const auto name = &EditsDialog::name, code = &EditsDialog::code, number = &EditsDialog::number,
             body = &EditsDialog::body;
  const std::vector<Step> steps = {
      {"the limit", code, "|", {"abcdefg"}, "abcd|"},
      {"two bytes do not fit into one", code, "|", {"abc\u00e9"}, "abc|"},
      {"a pasted character is not cut", code, "|", {Pasted{"\u20ac\u20ac"}}, "\u20ac|"},
      {"what is selected makes room", code, "[\u20ac]", {"12345"}, "1234|"},
      {"the program may exceed the limit", code, "longer|", {"s"}, "longer|"},
      {"what does not fit erases nothing", code, "[l]onger", {"s"}, "[l]onger"},
      {"but a person may erase", code, "longer|", {"\b\b\bg"}, "long|"},
      {"digits only", number, "|", {"1a2-\u0663 3"}, "123|"},
      {"digits only, and of one line", number, "|", {Pasted{"7 8\n9"}}, "78|"},
      {"lines", body, "|", {"one\ntwo"}, "one\r\ntwo|"},
      {"the beginning of a line", body, "one\r\ntwo|", {Key::kHome}, "one\r\n|two"},
      {"a line break is one step", body, "one\r\n|two", {Key::kLeft}, "one|\r\ntwo"},
      {"and one character", body, "one|\r\ntwo", {Key::kDelete}, "one|two"},
      {"to both sides", body, "one|two", {"\n\n\b"}, "one\r\n|two"},
      {"down keeps the column", body, "oo|oo\r\nooooo\r\n", {Key::kDown}, "oooo\r\noo|ooo\r\n"},
      {"a shorter line is left at its end", body, "ooo|o\r\no", {Key::kDown}, "oooo\r\no|"},
      {"up from a longer line", body, "oo\r\nooo|o", {Key::kUp, Key::kEnd}, "oo|\r\noooo"},
      {"to an empty line", body, "oo\r\nooo|o\r\n", {Key::kDown}, "oo\r\noooo\r\n|"},
      {"one line where one fits", name, "|", {Pasted{"first\nsecond"}}, "first|"},
      {"all lines where they fit", body, "|", {Pasted{"a\nb\r\nc"}}, "a\r\nb\r\nc|"},
      {"in place of the selection", name, "a [long] name", {Pasted{"short"}}, "a short| name"},
      {"a step back over three bytes", name, "a\u00e9\u20ac|z", {Key::kLeft}, "a\u00e9|\u20acz"},
      {"two bytes erased", name, "a\u00e9|\u20acz", {"\b"}, "a|\u20acz"},
      {"a step over three bytes", name, "a|\u20acz", {Key::kRight}, "a\u20ac|z"},
      {"forward from the beginning", name, "a\u20ac|z", {Key::kHome, Key::kDelete}, "|\u20acz"},
      {"a selection is left at its left", name, "01[2345]67", {Key::kLeft}, "01|234567"},
      {"and at its right", name, "01[2345]67", {Key::kRight}, "012345|67"},
  };
  Run([&](Person& p) {
    for (const Step& step : steps) {
      SCOPED_TRACE(step.what);
      Edit& field = dialog_.*step.field;
      test_support::Put(field, step.before);
      for (const Input& input : step.inputs) {
        if (const auto* text = std::get_if<std::string>(&input)) p.TypeHere(*text);
        if (const auto* key = std::get_if<Key>(&input)) p.Press(*key);
        if (const auto* pasted = std::get_if<Pasted>(&input)) p.Paste(field.Label(), pasted->text);
      }
      EXPECT_EQ(Marked(p.Text(field.Label()), p.Selection(field.Label())), step.after);
    }
  });
}

TEST_F(EditsTest, ALineBreakIsNeverCutInTwo) {
  dialog_.body.SetLimit(4);
  Run([this](Person& p) {
    p.Type("&Body:", "abc\n");
    EXPECT_EQ(p.Text("&Body:"), "abc") << "one byte is left, a line break takes two";
    p.Paste("&Body:", "\nx");
    EXPECT_EQ(p.Text("&Body:"), "abc");
    test_support::Put(dialog_.body, "a\r|\nb");
    EXPECT_EQ(Marked(p.Text("&Body:"), p.Selection("&Body:")), "a|\r\nb");
  });
}

TEST_F(EditsTest, WhatAFieldHasNoRoomForIsLostWithASound) {
  const platform::ui::FieldButton fields(dialog_, 199, "<< &Fields...", "Fields for", dialog_.code);
  EXPECT_EQ(fields.SpokenName(), "Fields for Code") << "there may be several such buttons";
  Run([this](Person& p) {
    p.Type("&Code:", "abcd");
    EXPECT_EQ(Script().beeps, 0);
    p.Type("&Code:", "abcde");
    EXPECT_EQ(Script().beeps, 1);
    p.Paste("&Code:", "vwxyz");
    EXPECT_EQ(Script().beeps, 2);
    EXPECT_EQ(p.Text("&Code:").size(), 4u);
  });
}

TEST_F(EditsTest, TypingReplacesTheTextAndReportsEachChange) {
  dialog_.name.SetText("before");
  Run([](Person& p) { p.Type("&Name:", "Zo\u00eb"); });
  EXPECT_EQ(dialog_.name.Text(), "Zo\u00eb");
  EXPECT_EQ(dialog_.changes, 3) << "one for each character; the program's own text reports nothing";
  EXPECT_EQ(dialog_.changed, std::vector<std::string>(3, "&Name:"));
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
    EXPECT_EQ(Marked(p.Text("&Name:"), p.Selection("&Name:")), "[hello]");
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

TEST_F(EditsTest, AFieldHearsOfFocusMouseKeysAndPastes) {
  Run([](Person& p) {
    p.ClickInText("&Listening:", 0);
    p.Press(Key::kRight);
    p.Press(Key::kEnd);
    p.Paste("&Listening:", "pasted");
    p.Focus("&Name:");
  });
  EXPECT_EQ(dialog_.listening.focus_gained, 1);
  EXPECT_EQ(dialog_.listening.focus_lost, 1);
  EXPECT_THAT(dialog_.listening.pasted, ElementsAre("pasted"));
  EXPECT_EQ(dialog_.listening.mouse_ups, 1);
  EXPECT_EQ(dialog_.listening.keys_up, (std::vector{Key::kRight, Key::kEnd}));
}

TEST_F(EditsTest, AProgramsReplacementGoesToTheSelectionUnreported) {
  dialog_.name.SetText("Alert at noon");
  Run([this](Person& p) {
    p.SelectText("&Name:", 9, 13);
    dialog_.name.ReplaceSelection("<Time> ");
    EXPECT_EQ(Marked(p.Text("&Name:"), p.Selection("&Name:")), "Alert at <Time> |");
    EXPECT_EQ(dialog_.changes, 0);
    p.TypeHere("!");
    EXPECT_EQ(p.Text("&Name:"), "Alert at <Time> !");
  });
}

TEST_F(EditsTest, ASpinStepsWithinItsRange) {
  dialog_.day.SetText("99");
  dialog_.level.SetText("nothing");
  Run([](Person& p) {
    p.StepSpin("&Day:", -1);
    EXPECT_EQ(p.Text("&Day:"), "30") << "comes back into it";
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
  EXPECT_EQ(dialog_.changed,
            (std::vector<std::string>{"&Day:", "&Day:", "&Day:", "&Day:", "&Level:", "&Level:"}));
}

}  // namespace
}  // namespace stories
