// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <utility>

#include "alerting/frame/strings.h"
#include "alerting/responses/keywords.h"
#include "alerting/ui/filtered_edit.h"
#include "alerting/ui/keyword_edit.h"
#include "alerting/ui/select_row.h"
#include "desktops/scripted/scripted_person.h"
#include "platform/ui/form.h"

namespace alerting {
namespace {

constexpr char kField[] = "&Text:";

/// A field of one kind on a form, another field to go to, and a person before them.
template <class Field>
class FieldTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { BuildKeywordTable(TheModule()); }
  void SetUp() override { form.Create(); }

  /// Puts a text into the field with the caret at "|", or with the selection in "[" and "]".
  void Put(std::string marked) {
    const std::size_t start = marked.find_first_of("|[");
    if (start != std::string::npos) marked.erase(start, 1);
    std::size_t end = marked.find(']');
    if (end != std::string::npos)
      marked.erase(end, 1);
    else
      end = start;
    field.SetText(marked);
    field.SetFocus();
    if (start != std::string::npos) field.SetSelection(start, end);
  }

  /// What Put would have been told.
  std::string Marked() const {
    std::string text = field.Text();
    const auto [start, end] = field.Selection();
    if (start == end) return text.insert(start, "|");
    return text.insert(end, "]").insert(start, "[");
  }

  int TakeBeeps() { return std::exchange(desktop.script.beeps, 0); }

  desktops::ScriptedDesktop desktop;
  ui::Form form{nullptr, "Form"};
  Field field{form, 1, kField};
  ui::Edit other{form, 2, "&Other:"};
  desktops::ScriptedPerson person{desktop, form};
};

using FilteredEditTest = FieldTest<CFilteredEdit>;
using KeywordEditTest = FieldTest<CKeywordEdit>;

TEST_F(FilteredEditTest, EachSetLetsItsOwnCharactersThroughAndBeepsAtTheRest) {
  struct Row {
    CharacterSet set;
    std::string accepted;
  };
  const Row rows[] = {{CharacterSet::kNumericMessage, "0123456789#*"},
                      {CharacterSet::kPhoneNumber, "0123456789(),-"},
                      {CharacterSet::kAreaCode, "0123456789"},
                      {CharacterSet::kDialing, "0123456789#*(),-!@"}};
  for (const Row& row : rows) {
    field.SetFilter(row.set);
    Put("|");
    int refused = 0;
    for (char c = ' '; c <= '~'; ++c) {
      person.TypeHere(std::string(1, c));
      if (row.accepted.find(c) == std::string::npos) ++refused;
    }
    person.TypeHere("\xC3\xA9");
    std::string typed = field.Text(), expected = row.accepted;
    std::ranges::sort(typed);
    std::ranges::sort(expected);
    EXPECT_EQ(typed, expected) << static_cast<int>(row.set);
    EXPECT_EQ(TakeBeeps(), refused + 1) << static_cast<int>(row.set);
  }
}

TEST_F(FilteredEditTest, ANewFieldTakesNumericMessages) {
  person.Type(kField, "*9-1 1#");
  EXPECT_EQ(field.Text(), "*911#");
  EXPECT_EQ(TakeBeeps(), 2);
}

TEST_F(FilteredEditTest, EditingKeysPass) {
  Put("123|");
  person.TypeHere("\b");
  EXPECT_EQ(Marked(), "12|");
  field.OnChar(ui::kCharUndo);
  EXPECT_EQ(field.Text(), "123");
  EXPECT_EQ(TakeBeeps(), 0);
}

TEST_F(FilteredEditTest, PastedTextLosesWhatTheSetRefuses) {
  field.SetFilter(CharacterSet::kPhoneNumber);
  Put("9[00]9");
  person.Paste(kField, "12 34-56\t\r\n7x\xC3\xA9");
  EXPECT_EQ(Marked(), "91234-567|9");
  EXPECT_EQ(TakeBeeps(), 0);
}

TEST_F(FilteredEditTest, ABackspaceIsTheOneControlCharacterThatIsPasted) {
  Put("|");
  field.OnPaste(
      "1\b2\x1B"
      "3\x7F");
  EXPECT_EQ(field.Text(), "1\b23");
}

TEST_F(FilteredEditTest, PastingWithoutTextBeepsAndKeepsTheSelection) {
  Put("1[2]3");
  desktop.clipboard.reset();
  field.OnChar(ui::kCharPaste);
  EXPECT_EQ(Marked(), "1[2]3");
  EXPECT_EQ(TakeBeeps(), 1);
}

TEST_F(FilteredEditTest, TheSelectionComesBackWithTheFocusUnlessAFilterWasChosen) {
  const auto leave_and_return = [this] {
    other.SetFocus();
    field.SetSelection(0, 0);
    field.SetFocus();
  };
  Put("1[23]4");
  leave_and_return();
  EXPECT_EQ(Marked(), "1[23]4");
  field.SetFilter(CharacterSet::kAreaCode);
  leave_and_return();
  EXPECT_EQ(Marked(), "|1234");
}

TEST_F(KeywordEditTest, WhatTouchesAKeywordIsRecognised) {
  struct Row {
    std::string before;
    bool backspace;
    bool touches;
    std::string after;  ///< with `adjust`
  };
  const Row rows[] = {
      {"for <Us|er Name> at", false, true, "for [<User Name>] at"},
      {"for <|User Name> at", false, true, "for [<User Name>] at"},
      {"for |<User Name> at", false, false, "for |<User Name> at"},
      {"for <User Name>| at", false, false, "for <User Name>| at"},
      {"for <User Name>| at", true, true, "for [<User Name>] at"},
      {"for |<User Name> at", true, false, "for |<User Name> at"},
      {"f[or <User] Name> at", false, true, "f[or <User Name>] at"},
      {"for <User [Name> a]t", false, true, "for [<User Name> a]t"},
      {"<Ti[me><Da]te>", false, true, "[<Time><Date>]"},
      {"[<Time> to <Da]te>", false, true, "[<Time> to <Date>]"},
      {"[<Time>]", false, false, "[<Time>]"},
      {"[<Time>]", true, false, "[<Time>]"},
      {"[<Time> to <Date>]", true, false, "[<Time> to <Date>]"},
      {"<Date>[<Time>]", true, false, "<Date>[<Time>]"},
      {"<Date>[ at]", true, true, "[<Date> at]"},
      {"<uSER nAME|> ", false, true, "[<uSER nAME>] "},
      {"a < b| c", true, false, "a < b| c"},
      {"a < b <Ti|me>", false, true, "a < b [<Time>]"},
      {"<Time|", true, false, "<Time|"},
      {"<Operational| Status>", false, false, "<Operational| Status>"},
      {"|", true, false, "|"},
  };
  for (const Row& row : rows) {
    Put(row.before);
    EXPECT_EQ(field.ProtectKeywords(false, row.backspace), row.touches) << row.before;
    EXPECT_EQ(Marked(), row.before);
    EXPECT_EQ(field.ProtectKeywords(true, row.backspace), row.touches) << row.before;
    EXPECT_EQ(Marked(), row.after) << row.before;
  }
}

TEST_F(KeywordEditTest, BackspaceSelectsAKeywordFirstAndThenDeletesIt) {
  Put("at <Time>|.");
  person.TypeHere("\b");
  EXPECT_EQ(Marked(), "at [<Time>].");
  EXPECT_EQ(TakeBeeps(), 1);
  person.TypeHere("\b");
  EXPECT_EQ(Marked(), "at |.");
  EXPECT_EQ(TakeBeeps(), 0);
}

TEST_F(KeywordEditTest, DeleteSelectsAKeywordFirstAndThenDeletesIt) {
  Put("at |<Time>.");
  person.Press(ui::Key::kDelete);
  EXPECT_EQ(Marked(), "at [<Time>].");
  EXPECT_EQ(TakeBeeps(), 1);
  person.Press(ui::Key::kDelete);
  EXPECT_EQ(Marked(), "at |.");
  person.Press(ui::Key::kDelete);
  EXPECT_EQ(Marked(), "at |");
  EXPECT_EQ(TakeBeeps(), 0);
}

TEST_F(KeywordEditTest, NothingIsTypedPastedOrCutInAKeyword) {
  const std::function<void()> edits[] = {
      [&] { person.TypeHere("x"); },          [&] { field.OnChar(ui::kCharCut); },
      [&] { field.OnChar(ui::kCharPaste); },  [&] { field.OnPaste("dropped"); },
      [&] { field.OnChar(ui::kCharEnter); },  [&] { person.TypeHere("\b"); },
      [&] { person.Press(ui::Key::kDelete); }};
  field.SetMultiLine(true);
  desktop.clipboard = "pasted";
  for (const auto& edit : edits) {
    Put("for <Us[er Na]me> at");
    edit();
    EXPECT_EQ(Marked(), "for [<User Name>] at");
    EXPECT_EQ(TakeBeeps(), 1);
  }
  EXPECT_EQ(desktop.clipboard, "pasted");
}

TEST_F(KeywordEditTest, AWholeKeywordIsCopiedReplacedAndBroughtBack) {
  Put("at [<Time>].");
  field.OnChar(ui::kCharCopy);
  EXPECT_EQ(desktop.clipboard, "<Time>");
  person.TypeHere("6");
  EXPECT_EQ(Marked(), "at 6|.");
  field.OnChar(ui::kCharUndo);
  EXPECT_EQ(Marked(), "at [<Time>].");
  EXPECT_EQ(TakeBeeps(), 0);
}

TEST_F(KeywordEditTest, AKeywordCompletedByTypingCanBeUndoneAtOnce) {
  Put("<T|me>");
  person.TypeHere("i");
  EXPECT_EQ(field.Text(), "<Time>");
  field.OnChar(ui::kCharUndo);
  EXPECT_EQ(Marked(), "<T|me>");
  EXPECT_EQ(TakeBeeps(), 0);
}

TEST_F(KeywordEditTest, TheMouseSelectsKeywordsWhole) {
  Put("Alert for <User Name> at <Time>|");
  person.ClickInText(kField, 12);
  EXPECT_EQ(Marked(), "Alert for [<User Name>] at <Time>");
  person.SelectText(kField, 3, 27);
  EXPECT_EQ(Marked(), "Ale[rt for <User Name> at <Time>]");
  person.ClickInText(kField, 3);
  EXPECT_EQ(Marked(), "Ale|rt for <User Name> at <Time>");
}

TEST_F(KeywordEditTest, ArrowsPassAKeywordInTwoSteps) {
  Put("a|<Time>b");
  person.Press(ui::Key::kRight);
  EXPECT_EQ(Marked(), "a[<Time>]b");
  EXPECT_FALSE(field.CaretAtStart());
  person.Press(ui::Key::kRight);
  EXPECT_EQ(Marked(), "a<Time>|b");
  person.Press(ui::Key::kLeft);
  EXPECT_EQ(Marked(), "a[<Time>]b");
  EXPECT_TRUE(field.CaretAtStart());
  person.Press(ui::Key::kLeft);
  EXPECT_EQ(Marked(), "a|<Time>b");
  EXPECT_EQ(TakeBeeps(), 0);
}

TEST_F(KeywordEditTest, LinesAboveAndBelowAreEnteredAtWholeKeywords) {
  field.SetMultiLine(true);
  Put("<User Name>\r\nabc|\r\n<Date>");
  person.Press(ui::Key::kUp);
  EXPECT_EQ(Marked(), "[<User Name>]\r\nabc\r\n<Date>");
  EXPECT_TRUE(field.CaretAtStart());
  Put("<User Name>\r\nabc|\r\n<Date>");
  person.Press(ui::Key::kDown);
  EXPECT_EQ(Marked(), "<User Name>\r\nabc\r\n[<Date>]");
  EXPECT_FALSE(field.CaretAtStart());
}

TEST_F(KeywordEditTest, OtherKeysLeaveTheCaretAlone) {
  Put("<Ti|me>");
  field.OnKeyUp(ui::Key::kF1);
  EXPECT_EQ(Marked(), "<Ti|me>");
  field.OnKeyUp(ui::Key::kHome);
  EXPECT_EQ(Marked(), "[<Time>]");
}

TEST_F(KeywordEditTest, TheSelectionAndItsDirectionComeBackWithTheFocus) {
  Put("at [<Time>].");
  field.SetSelection(3, 9, true);
  other.SetFocus();
  field.SetSelection(0, 0);
  field.SetFocus();
  EXPECT_EQ(Marked(), "at [<Time>].");
  EXPECT_TRUE(field.CaretAtStart());
}

TEST(SelectRowTest, SelectsTheVisibleRowUnderTheMouseOnly) {
  ui::Form form(nullptr, "");
  ui::ListView list(form, 1, "&List:");
  for (int i = 0; i < 20; ++i) list.AddRow({std::to_string(i)});
  list.OnScrolled(5, 4);
  const auto select_at = [&](int row) {
    list.OnClickAt(row);
    list.SelectRow(0);
    list.FocusRow(0);
    return SelectRowUnderCursor(list);
  };
  for (const int row : {5, 8}) {
    EXPECT_TRUE(select_at(row)) << row;
    EXPECT_EQ(list.SelectedRow(), row);
    EXPECT_EQ(list.FocusedRow(), row);
  }
  for (const int row : {-1, 4, 9}) {
    EXPECT_FALSE(select_at(row)) << row;
    EXPECT_EQ(list.SelectedRow(), 0);
  }
  list.OnScrolled(18, 4);
  EXPECT_TRUE(select_at(19));
}

}  // namespace
}  // namespace alerting
