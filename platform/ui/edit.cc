// SPDX-License-Identifier: MIT
#include "platform/ui/edit.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "platform/base/utf8.h"
#include "platform/ui/desktop.h"

namespace platform::ui {
namespace {

constexpr std::string_view kLineBreak = "\r\n";
constexpr std::size_t kUndoSteps = 100;

bool IsLineBreak(std::string_view text, std::size_t pos) { return text.substr(pos, 2) == kLineBreak; }

// One step of the caret: a character, or the two of a line break.
std::size_t Next(std::string_view text, std::size_t pos) {
  return pos < text.size() && IsLineBreak(text, pos) ? pos + 2 : Utf8Next(text, pos);
}

std::size_t Previous(std::string_view text, std::size_t pos) {
  return pos >= 2 && IsLineBreak(text, pos - 2) ? pos - 2 : Utf8Previous(text, pos);
}

std::string OnlyDigits(std::string_view text) {
  std::string digits;
  std::ranges::copy_if(text, std::back_inserter(digits), [](char c) { return c >= '0' && c <= '9'; });
  return digits;
}

// Clipboards of other programs have line breaks of one character.
std::string WithWholeLineBreaks(std::string_view text) {
  std::string whole;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r' && text[i] != '\n') {
      whole += text[i];
      continue;
    }
    if (IsLineBreak(text, i)) ++i;
    whole += kLineBreak;
  }
  return whole;
}

}  // namespace

void Edit::SetText(std::string_view text) {
  text_ = text;
  undo_.clear();
  typing_ = false;
  start_ = end_ = 0;
  caret_at_start_ = false;
  Notify(Change::kText);
}

void Edit::SetLimit(std::size_t bytes) {
  limit_ = bytes;
  Notify(Change::kStyle);
}

void Edit::SetMasked(bool masked) {
  masked_ = masked;
  Notify(Change::kStyle);
}

void Edit::SetMultiLine(bool multi_line) {
  multi_line_ = multi_line;
  Notify(Change::kStyle);
}

void Edit::SetReadOnly(bool read_only) {
  read_only_ = read_only;
  Notify(Change::kStyle);
}

void Edit::SetSelection(std::size_t start, std::size_t end, bool caret_at_start) {
  Place(start, end, caret_at_start);
  Notify(Change::kSelection);
}

void Edit::OnSelectionMoved(std::size_t start, std::size_t end, bool caret_at_start) {
  Place(start, end, caret_at_start);
}

void Edit::Place(std::size_t start, std::size_t end, bool caret_at_start) {
  caret_at_start_ = caret_at_start || start > end;
  start_ = Boundary(std::min(start, end));
  end_ = Boundary(std::max(start, end));
  if (start_ == end_) caret_at_start_ = false;
  typing_ = false;
}

// The last place for a caret at or before `pos`.
std::size_t Edit::Boundary(std::size_t pos) const {
  pos = Utf8Prefix(text_, std::min(pos, text_.size()));
  return pos > 0 && IsLineBreak(text_, pos - 1) ? pos - 1 : pos;
}

void Edit::Splice(std::size_t start, std::size_t end, std::string_view text) {
  RememberForUndo();
  text_.replace(start, end - start, text);
  // Bytes that are no characters of their own may have joined with their new neighbours.
  start_ = end_ = Boundary(start + text.size());
  caret_at_start_ = false;
  Notify(Change::kText);
}

void Edit::RememberForUndo() {
  if (undo_.size() == kUndoSteps) undo_.erase(undo_.begin());
  undo_.push_back({text_, start_, end_});
  typing_ = false;
}

void Edit::ReplaceSelection(std::string_view text) { Splice(start_, end_, text); }

void Edit::InsertByPerson(std::string_view text) {
  if (!Editable()) return;
  const std::size_t kept = text_.size() - (end_ - start_);
  const std::size_t room = limit_ > kept ? limit_ - kept : 0;
  std::size_t fits = Utf8Prefix(text, room);
  if (fits > 0 && IsLineBreak(text, fits - 1)) --fits;
  if (fits < text.size()) Desktop::Current().Beep();  // nothing gets lost without a sound
  if (fits == 0 && !text.empty()) return;
  text = text.substr(0, fits);
  if (text_.compare(start_, end_ - start_, text) == 0) return SetSelection(end_, end_);
  Splice(start_, end_, text);
  ChangedByPerson();
}

void Edit::EraseByPerson(std::size_t start, std::size_t end) {
  if (!Editable() || start == end) return;
  Splice(start, end, {});
  ChangedByPerson();
}

void Edit::OnStepped(std::string_view text) {
  if (!WithinReach() || text == text_) return;
  Splice(0, text_.size(), text);
  ChangedByPerson();
}

void Edit::OnChar(char32_t c) {
  if (!WithinReach()) return;
  switch (c) {
    case kCharSelectAll:
      return SetSelection(0, text_.size());
    case kCharCopy:
      return CopySelection();
    case kCharBackspace:
      return Backspace();
    case kCharEnter:
      if (multi_line_) InsertByPerson(kLineBreak);
      return;
    case kCharPaste:
      return Paste();
    case kCharCut:
      return Cut();
    case kCharUndo:
      return Undo();
    default:
      return TypeCharacter(c);
  }
}

void Edit::TypeCharacter(char32_t c) {
  constexpr char32_t kDeleteCharacter = 127;
  if (c < 32 || c == kDeleteCharacter) return;
  if (digits_only_ && (c < U'0' || c > U'9')) return;
  std::string text;
  Utf8Append(text, c);
  // A run of typing is undone as a whole: only its first character's step stays.
  const bool goes_on = typing_;
  const std::size_t steps = undo_.size();
  InsertByPerson(text);
  if (goes_on && undo_.size() > steps) undo_.pop_back();
  typing_ = goes_on || undo_.size() > steps;
}

void Edit::OnPaste(std::string_view text) {
  text = text.substr(0, text.find('\0'));
  if (!multi_line_) text = text.substr(0, text.find_first_of(kLineBreak));
  InsertByPerson(digits_only_ ? OnlyDigits(text) : WithWholeLineBreaks(text));
}

void Edit::Paste() {
  if (!Editable()) return;
  const std::optional<std::string> text = Desktop::Current().ClipboardText();
  if (text) OnPaste(*text);
}

void Edit::Backspace() {
  if (start_ != end_) return EraseByPerson(start_, end_);
  EraseByPerson(Previous(text_, start_), start_);
}

void Edit::DeleteForward() {
  if (start_ != end_) return EraseByPerson(start_, end_);
  EraseByPerson(start_, Next(text_, start_));
}

void Edit::CopySelection() const {
  if (masked_ || start_ == end_) return;
  Desktop::Current().SetClipboardText(text_.substr(start_, end_ - start_));
}

void Edit::Cut() {
  if (masked_ || !Editable()) return;
  CopySelection();
  EraseByPerson(start_, end_);
}

void Edit::Undo() {
  if (!Editable() || undo_.empty()) return;
  const State state = std::move(undo_.back());
  undo_.pop_back();
  const bool changed = state.text != text_;
  text_ = state.text;
  Place(state.start, state.end, false);
  Notify(Change::kText);
  if (changed) ChangedByPerson();
}

void Edit::OnKeyDown(Key key) {
  if (!WithinReach()) return;
  if (key == Key::kDelete) return DeleteForward();
  const std::size_t caret = CaretAfter(key);
  if (caret != std::string::npos) SetSelection(caret, caret);
}

// Where a key puts the caret; npos for keys that do not move it. An arrow first leaves the selection at its
// side.
std::size_t Edit::CaretAfter(Key key) const {
  const bool selected = start_ != end_;
  switch (key) {
    case Key::kLeft:
      return selected ? start_ : Previous(text_, start_);
    case Key::kRight:
      return selected ? end_ : Next(text_, end_);
    case Key::kHome:
      return LineStart(Caret());
    case Key::kEnd:
      return LineEnd(Caret());
    case Key::kUp: {
      const std::size_t line = LineStart(Caret());
      return line > 0 ? SameColumn(LineStart(Previous(text_, line))) : Caret();
    }
    case Key::kDown: {
      const std::size_t end = LineEnd(Caret());
      return end < text_.size() ? SameColumn(Next(text_, end)) : Caret();
    }
    case Key::kPageUp:
      return 0;
    case Key::kPageDown:
      return text_.size();
    default:
      return std::string::npos;
  }
}

// The place in another line as many characters in as the caret is in its own.
std::size_t Edit::SameColumn(std::size_t line_start) const {
  const std::size_t end = LineEnd(line_start);
  std::size_t pos = line_start;
  for (std::size_t at = LineStart(Caret()); at < Caret() && pos < end; at = Next(text_, at)) {
    pos = Next(text_, pos);
  }
  return pos;
}

std::size_t Edit::LineStart(std::size_t pos) const {
  while (pos > 0 && !(pos >= 2 && IsLineBreak(text_, pos - 2))) --pos;
  return pos;
}

std::size_t Edit::LineEnd(std::size_t pos) const {
  return std::min(text_.find(kLineBreak, pos), text_.size());
}

}  // namespace platform::ui
