// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/ui/control.h"

namespace platform::ui {

/// Characters below 32 that OnChar knows.
constexpr char32_t kCharSelectAll = 1;
constexpr char32_t kCharCopy = 3;
constexpr char32_t kCharBackspace = 8;
constexpr char32_t kCharEnter = 13;
constexpr char32_t kCharPaste = 22;
constexpr char32_t kCharCut = 24;
constexpr char32_t kCharUndo = 26;

/// A text field. The object does the editing itself, so a filter in a derived class sees every character on
/// every desktop: typed keys arrive at OnChar, pasted and dropped text at OnPaste. Texts are UTF-8; positions
/// and the limit count bytes and never fall inside a sequence. A line break in a multi-line field is "\r\n",
/// passed and erased in one step.
class Edit : public Control {
 public:
  static constexpr std::size_t kNoLimit = static_cast<std::size_t>(-1);

  Edit(Form& form, int id, std::string label) : Control(form, id, std::move(label)) {}

  const std::string& Text() const { return text_; }
  /// May exceed the limit, which binds persons only. Puts the caret at the start.
  void SetText(std::string_view text);

  std::size_t Limit() const { return limit_; }
  void SetLimit(std::size_t bytes);
  bool Masked() const { return masked_; }
  void SetMasked(bool masked);
  bool MultiLine() const { return multi_line_; }
  void SetMultiLine(bool multi_line);
  bool ReadOnly() const { return read_only_; }
  void SetReadOnly(bool read_only);
  /// Persons can enter the digits 0 to 9 only.
  bool DigitsOnly() const { return digits_only_; }
  void SetDigitsOnly(bool digits_only) { digits_only_ = digits_only; }

  /// The selection as [start, end); equal where there is only a caret.
  std::pair<std::size_t, std::size_t> Selection() const { return {start_, end_}; }
  bool CaretAtStart() const { return caret_at_start_; }
  std::size_t Caret() const { return caret_at_start_ ? start_ : end_; }
  /// Clamped to the text and to sequence boundaries; swapped ends mean a caret at the start.
  void SetSelection(std::size_t start, std::size_t end, bool caret_at_start = false);
  /// Replaces the selection, the caret goes behind the inserted text. A program's change: no report, no
  /// limit.
  void ReplaceSelection(std::string_view text);
  /// Asks the desktop to bring the caret into view.
  void ScrollToCaret() { Notify(Change::kSelection); }

  /// A typed character or one of the kChar... controls. The base edits the text.
  virtual void OnChar(char32_t c);
  /// Text put in from the clipboard or dropped by a person. The base inserts it at the selection, cut to the
  /// limit; a single-line field takes the text before the first line break.
  virtual void OnPaste(std::string_view text);
  /// The mouse button was released in the field; the selection is already what the mouse made it.
  virtual void OnMouseUp() {}
  /// The base moves the caret (for desktops whose widget does not) and handles Delete.
  void OnKeyDown(Key key) override;
  /// A desktop's widget moved the selection itself (mouse drag, Shift+arrow, double click).
  void OnSelectionMoved(std::size_t start, std::size_t end, bool caret_at_start);
  /// A spin beside the field put a number there: a person's change, which asks no limit.
  void OnStepped(std::string_view text);

 private:
  struct State {
    std::string text;
    std::size_t start, end;
  };

  bool Editable() const { return !read_only_ && WithinReach(); }
  void Place(std::size_t start, std::size_t end, bool caret_at_start);
  void Splice(std::size_t start, std::size_t end, std::string_view text);
  void InsertByPerson(std::string_view text);
  void EraseByPerson(std::size_t start, std::size_t end);
  void TypeCharacter(char32_t c);
  void Backspace();
  void DeleteForward();
  void CopySelection() const;
  void Cut();
  void Undo();
  void RememberForUndo();
  void Paste();
  std::size_t CaretAfter(Key key) const;
  std::size_t SameColumn(std::size_t line_start) const;
  std::size_t LineStart(std::size_t pos) const;
  std::size_t LineEnd(std::size_t pos) const;
  std::size_t Boundary(std::size_t pos) const;

  std::string text_;
  std::size_t start_ = 0, end_ = 0;
  bool caret_at_start_ = false;
  std::size_t limit_ = kNoLimit;
  bool masked_ = false, multi_line_ = false, read_only_ = false, digits_only_ = false;
  std::vector<State> undo_;
  // The last change was a typed character; the next one belongs to the same undo step.
  bool typing_ = false;
};

}  // namespace platform::ui
