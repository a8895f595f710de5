// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

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
#include "tests/support/marked_text.h"

namespace alerting {
namespace {

constexpr char kField[] = "&Text:";

/// A field of one kind on a form, another field to go to, and a person before them.
template <class Field>
class FieldTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { BuildKeywordTable(TheModule()); }
  void SetUp() override { form.Create(); }

  void Put(const std::string& marked) { test_support::Put(field, marked); }
  std::string Marked() const { return test_support::Marked(field.Text(), field.Selection()); }
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

TEST_F(FilteredEditTest, EditingKeysPass) {
  Put("12|");
  person.TypeHere(" 3-");
  EXPECT_EQ(TakeBeeps(), 2) << "a new field takes numeric messages";
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
  Put("|");
  field.OnPaste(
      "1\b2\x1B"
      "3\x7F");
  EXPECT_EQ(field.Text(), "1\b23") << "a backspace is the one control character that is pasted";
  EXPECT_EQ(TakeBeeps(), 0);
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

TEST_F(KeywordEditTest, AKeywordIsEnteredLeftAndDeletedAsOne) {
  using Action = std::function<void()>;
  const auto press = [&](ui::Key key) { return Action([this, key] { person.Press(key); }); };
  const auto char_of = [&](char32_t c) { return Action([this, c] { field.OnChar(c); }); };
  const auto type = [&](const char* text) { return Action([this, text] { person.TypeHere(text); }); };
  const Action backspace = type("\b"), del = press(ui::Key::kDelete);
  const char *const inside = "for <Us[er Na]me> at", *const whole = "for [<User Name>] at";
  const struct {
    std::string before;
    Action act;
    std::string after;
    int beeps = 0;
    bool at_start = false;  ///< of what is selected stands the caret
  } rows[] = {
      {"at <Time>|.", backspace, "at [<Time>].", 1},
      {"at [<Time>].", backspace, "at |."},
      {"at |<Time>.", del, "at [<Time>].", 1},
      {"at [<Time>].", del, "at |."},
      {"at |.", del, "at |"},
      {inside, type("x"), whole, 1},
      {inside, char_of(ui::kCharCut), whole, 1},
      {inside, char_of(ui::kCharPaste), whole, 1},
      {inside, [&] { field.OnPaste("dropped"); }, whole, 1},
      {inside, char_of(ui::kCharEnter), whole, 1},
      {inside, backspace, whole, 1},
      {inside, del, whole, 1},
      {"<T|me>", type("i"), "<Ti|me>"},
      {"a|<Time>b", press(ui::Key::kRight), "a[<Time>]b"},
      {"a[<Time>]b", press(ui::Key::kRight), "a<Time>|b"},
      {"a<Time>|b", press(ui::Key::kLeft), "a[<Time>]b", 0, true},
      {"<User Name>\r\nabc|\r\n<Date>", press(ui::Key::kUp), "[<User Name>]\r\nabc\r\n<Date>", 0, true},
      {"<User Name>\r\nabc|\r\n<Date>", press(ui::Key::kDown), "<User Name>\r\nabc\r\n[<Date>]"},
      {"<Ti|me>", [&] { field.OnKeyUp(ui::Key::kF1); }, "<Ti|me>"},
      {"<Ti|me>", [&] { field.OnKeyUp(ui::Key::kHome); }, "[<Time>]"},
  };
  field.SetMultiLine(true);
  for (const auto& row : rows) {
    SCOPED_TRACE(row.before);
    desktop.clipboard = "untouched";
    Put(row.before);
    row.act();
    EXPECT_EQ(Marked(), row.after);
    EXPECT_EQ(TakeBeeps(), row.beeps);
    EXPECT_EQ(desktop.clipboard, "untouched");
    const bool selected = row.after.find('[') != std::string::npos;
    EXPECT_EQ(selected && row.beeps == 0 && field.CaretAtStart(), row.at_start);
  }
  Put("<T|me>");
  person.TypeHere("i");
  field.OnChar(ui::kCharUndo);
  EXPECT_EQ(Marked(), "<T|me>") << "a keyword completed by typing is undone at once";
  Put("a[<Time>]b");
  field.SetSelection(1, 7, true);
  person.Press(ui::Key::kLeft);
  EXPECT_EQ(Marked(), "a|<Time>b");
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
