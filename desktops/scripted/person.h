// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/ui/canvas.h"

namespace desktops {

/// What a person was asked to do cannot be done: no such label, hidden, disabled. Says what was on the
/// screen.
class PersonError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A person in front of one modal window (a dialog, or a property sheet with its current page), who acts by
/// what is visible: labels as they are written in the program ("&Name:"). What is hidden or disabled cannot
/// be touched, and each character goes through the control's own filters. Every action that cannot be done
/// throws PersonError.
class Person {
 public:
  virtual ~Person() = default;

  /// Tabs into the field, which selects what is there, and types: replaces the field's text.
  virtual void Type(const std::string& label, const std::string& text) = 0;
  /// Types into the control with the focus, at the caret. "\b" is backspace, "\n" Enter, any other
  /// control character Ctrl with its letter ("\x03" Ctrl+C).
  virtual void TypeHere(const std::string& text) = 0;
  /// Presses and releases a key in the control with the focus.
  virtual void Press(platform::ui::Key key) = 0;
  /// Clicks into the text before byte `position`.
  virtual void ClickInText(const std::string& label, std::size_t position) = 0;
  /// Drags the mouse over [start, end) of the text.
  virtual void SelectText(const std::string& label, std::size_t start, std::size_t end) = 0;
  /// Puts `text` on the clipboard, moves the focus to the field if it is not there, and presses Ctrl+V.
  virtual void Paste(const std::string& label, const std::string& text) = 0;
  /// Moves the focus to the control, as Tab does: a one-line field then has its whole text selected.
  virtual void Focus(const std::string& label) = 0;

  /// Presses a button, or a sheet's OK, Cancel, Apply, "< Back", "Next >", Finish.
  virtual void Press(const std::string& button) = 0;
  /// Presses the button that stands in the same row as the labelled control.
  virtual void PressBeside(const std::string& label, const std::string& button) = 0;
  /// Presses Alt and the key.
  virtual void AccessKey(char key) = 0;
  /// Clicks the box until it is as wanted.
  virtual void Check(const std::string& label, bool checked) = 0;
  /// Clicks the option of a radio group.
  virtual void ChooseOption(const std::string& group, const std::string& option) = 0;
  /// Chooses an item of a combo or list box by its text.
  virtual void Choose(const std::string& label, const std::string& item) = 0;
  virtual void DoubleClickItem(const std::string& label, const std::string& item) = 0;
  virtual void ClickRow(const std::string& label, int row) = 0;
  virtual void DoubleClickRow(const std::string& label, int row) = 0;
  /// What a person does on a canvas, in its pixels: click, double click, drag from one place to another, and
  /// scroll; `thumb` is where kThumb lets its scroll bar go.
  virtual void ClickAt(const std::string& label, int x, int y) = 0;
  virtual void DoubleClickAt(const std::string& label, int x, int y) = 0;
  virtual void DragOver(const std::string& label, int x, int y, int to_x, int to_y) = 0;
  virtual void ScrollCanvas(const std::string& label, platform::ui::Canvas::Scroll what, int thumb = 0) = 0;
  virtual void StepSpin(const std::string& buddy_label, int direction) = 0;
  virtual void SelectTab(const std::string& caption) = 0;
  /// F1 on the control; the text shown, or "".
  virtual std::string HelpOn(const std::string& label) = 0;
  virtual void CloseWindow() = 0;

  /// What a person sees. A text has the program's own line breaks ("\r\n"), so that positions count in it; a
  /// masked one shows "*" for each character. Labels of sheet buttons may be asked about too.
  virtual std::string Caption() = 0;
  virtual std::string Text(const std::string& label) = 0;
  virtual std::pair<std::size_t, std::size_t> Selection(const std::string& label) = 0;
  virtual bool IsVisible(const std::string& label) = 0;
  virtual bool IsEnabled(const std::string& label) = 0;
  virtual bool IsChecked(const std::string& label) = 0;
  virtual std::string ChosenOption(const std::string& group) = 0;
  virtual std::vector<std::string> Items(const std::string& label) = 0;
  virtual std::vector<std::vector<std::string>> Rows(const std::string& label) = 0;
  virtual int SelectedRow(const std::string& label) = 0;
  virtual std::vector<std::string> Tabs() = 0;
  /// The label of the control with the focus, or "".
  virtual std::string FocusedLabel() = 0;
  /// Everything visible, one line a control; for messages about failures.
  virtual std::string Screen() = 0;
};

}  // namespace desktops
