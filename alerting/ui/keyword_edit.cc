// SPDX-License-Identifier: MIT
#include "alerting/ui/keyword_edit.h"

#include <cstring>

#include "alerting/responses/keywords.h"
#include "platform/base/utf8.h"
#include "platform/ui/desktop.h"

namespace alerting {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

/// The keyword that [from, to) of the text enters and does not leave: where it begins, or kNone. Only the
/// last "<" matters, for names have none inside; an earlier one is closed, or is no keyword.
std::size_t OpenKeyword(std::string_view text, std::size_t from, std::size_t to) {
  const std::string_view part = text.substr(from, to - from);
  const std::size_t open = part.rfind('<');
  if (open == kNone || part.find('>', open) != kNone) return kNone;
  return FindKeywordAt(text, from + open) >= 0 ? from + open : kNone;
}

std::size_t KeywordEnd(std::string_view text, std::size_t start) {
  return start + std::strlen(KeywordAt(FindKeywordAt(text, start)).name);
}

bool MovesCaret(ui::Key key) {
  switch (key) {
    case ui::Key::kPageUp:
    case ui::Key::kPageDown:
    case ui::Key::kEnd:
    case ui::Key::kHome:
    case ui::Key::kLeft:
    case ui::Key::kUp:
    case ui::Key::kRight:
    case ui::Key::kDown:
      return true;
    default:
      return false;
  }
}

/// Commands that put nothing into the text at the caret are never in a keyword's way.
bool IsHarmless(char32_t c) { return c == ui::kCharSelectAll || c == ui::kCharCopy || c == ui::kCharUndo; }

}  // namespace

bool CKeywordEdit::ProtectKeywords(bool adjust, bool backspace) {
  return Protect(adjust, backspace, CaretAtStart());
}

bool CKeywordEdit::Protect(bool adjust, bool backspace, bool reversed) {
  const std::string_view text = Text();
  auto [start, end] = Selection();
  const bool selected = start != end;
  if (backspace && selected && text[start] == '<' && text[end - 1] == '>') return false;

  bool touched = false;
  const std::size_t left = backspace ? platform::Utf8Previous(text, start) : start;
  if (const std::size_t keyword = OpenKeyword(text, 0, left); keyword != kNone) {
    touched = true;
    if (adjust) start = keyword;
  }
  if (const std::size_t keyword = OpenKeyword(text, start, end); keyword != kNone) {
    touched = true;
    end = KeywordEnd(text, keyword);
  }
  // An untouched selection is left alone, so that the end that the person moves stays the one that moves.
  if (adjust && touched) SetSelection(start, end, reversed);
  return touched;
}

void CKeywordEdit::OnChar(char32_t c) {
  if (!IsHarmless(c) && ProtectKeywords(true, c == ui::kCharBackspace))
    ui::Desktop::Current().Beep();
  else
    Edit::OnChar(c);
}

void CKeywordEdit::OnPaste(std::string_view text) {
  if (ProtectKeywords(true, false))
    ui::Desktop::Current().Beep();
  else
    Edit::OnPaste(text);
}

void CKeywordEdit::OnKeyDown(ui::Key key) {
  if (key == ui::Key::kDelete && RefusesDelete())
    ui::Desktop::Current().Beep();
  else
    Edit::OnKeyDown(key);
}

/// Delete before a keyword does what Backspace does behind it: it selects the keyword first.
bool CKeywordEdit::RefusesDelete() {
  const auto [start, end] = Selection();
  if (start != end || FindKeywordAt(Text(), start) < 0) return ProtectKeywords(true, false);
  SetSelection(start, KeywordEnd(Text(), start));
  return true;
}

void CKeywordEdit::OnKeyUp(ui::Key key) {
  Edit::OnKeyUp(key);
  if (!MovesCaret(key)) return;
  // With the caret at the side it came to, the next press leaves the keyword.
  const bool backwards = key == ui::Key::kLeft || key == ui::Key::kUp;
  Protect(true, false, backwards || CaretAtStart());
}

void CKeywordEdit::OnMouseUp() {
  Edit::OnMouseUp();
  ProtectKeywords(true, false);
}

void CKeywordEdit::OnSetFocus() {
  Edit::OnSetFocus();
  SetSelection(remembered_start_, remembered_end_, reversed_);
}

void CKeywordEdit::OnKillFocus() {
  remembered_start_ = Selection().first;
  remembered_end_ = Selection().second;
  reversed_ = CaretAtStart();
  Edit::OnKillFocus();
}

}  // namespace alerting
