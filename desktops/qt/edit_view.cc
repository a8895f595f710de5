// SPDX-License-Identifier: MIT
#include "desktops/qt/edit_view.h"

#include <QInputMethodEvent>
#include <algorithm>
#include <limits>

namespace desktops::qt {

LineField::LineField(QWidget* parent) : QLineEdit(parent) { setMaxLength(std::numeric_limits<int>::max()); }

ShownSelection LineField::Selection() const {
  const int caret = cursorPosition();
  if (!hasSelectedText()) return {caret, caret};
  return {caret == selectionStart() ? selectionEnd() : selectionStart(), caret};
}

void LineField::Select(ShownSelection selection) {
  if (selection.anchor == selection.caret) {
    deselect();
    setCursorPosition(selection.caret);
  } else {
    setSelection(selection.anchor, selection.caret - selection.anchor);
  }
}

void LineField::SelectWord(bool forward) {
  if (forward) {
    cursorWordForward(true);
  } else {
    cursorWordBackward(true);
  }
}

void LineField::EndComposition() {
  QInputMethodEvent nothing;
  QLineEdit::event(&nothing);
}

void LineField::SetMasked(bool masked) { setEchoMode(masked ? QLineEdit::Password : QLineEdit::Normal); }

// Without anyone to hear of it the event may be the field's last.
bool LineField::event(QEvent* event) {
  if (events_ == nullptr) return QLineEdit::event(event);
  if (events_->BeforeEvent(*event)) return true;
  const bool handled = QLineEdit::event(event);
  if (events_ != nullptr) events_->AfterEvent(*event);
  return handled;
}

namespace {
constexpr int kLeastLines = 8;  // a message of fewer is read through a slit
}

TextField::TextField(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  setUndoRedoEnabled(false);
  const int margins = static_cast<int>(2 * document()->documentMargin());
  setMinimumHeight(fontMetrics().lineSpacing() * kLeastLines + margins + 2 * frameWidth());
}

// Replaces the part that differs, so that the view neither jumps nor flickers while someone types.
void TextField::Show(const QString& text) {
  const QString before = toPlainText();
  const qsizetype shorter = std::min(before.size(), text.size());
  qsizetype same_start = 0, same_end = 0;
  while (same_start < shorter && before[same_start] == text[same_start]) ++same_start;
  while (same_end < shorter - same_start &&
         before[before.size() - 1 - same_end] == text[text.size() - 1 - same_end]) {
    ++same_end;
  }
  QTextCursor cursor(document());
  cursor.setPosition(static_cast<int>(same_start));
  cursor.setPosition(static_cast<int>(before.size() - same_end), QTextCursor::KeepAnchor);
  cursor.insertText(text.mid(same_start, text.size() - same_start - same_end));
}

ShownSelection TextField::Selection() const { return {textCursor().anchor(), textCursor().position()}; }

void TextField::Select(ShownSelection selection) {
  const int end = document()->characterCount() - 1;
  QTextCursor cursor = textCursor();
  cursor.setPosition(std::min(selection.anchor, end));
  cursor.setPosition(std::min(selection.caret, end), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

void TextField::SelectWord(bool forward) {
  moveCursor(forward ? QTextCursor::NextWord : QTextCursor::PreviousWord, QTextCursor::KeepAnchor);
}

void TextField::EndComposition() {
  QInputMethodEvent nothing;
  QPlainTextEdit::event(&nothing);
}

bool TextField::event(QEvent* event) {
  if (events_ == nullptr) return QPlainTextEdit::event(event);
  if (events_->BeforeEvent(*event)) return true;
  const bool handled = QPlainTextEdit::event(event);
  if (events_ != nullptr) events_->AfterEvent(*event);
  return handled;
}

bool TextField::viewportEvent(QEvent* event) {
  if (events_ != nullptr && events_->BeforeEvent(*event)) return true;
  const bool handled = QPlainTextEdit::viewportEvent(event);
  if (events_ != nullptr) events_->AfterEvent(*event);
  return handled;
}

}  // namespace desktops::qt
