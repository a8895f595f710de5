// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "desktops/scripted/scripted_desktop.h"
#include "platform/ui/edit.h"
#include "platform/ui/lists.h"
#include "platform/ui/property_sheet.h"

namespace desktops {

/// A person who acts on the window's objects themselves, by the same entry points as a desktop of real
/// widgets.
class ScriptedPerson : public Person {
 public:
  /// In front of a dialog or sheet that is open.
  ScriptedPerson(ScriptedDesktop& desktop, platform::ui::Modal& modal);
  /// In front of a form that is not modal by itself, as the preview area of a file dialog.
  ScriptedPerson(ScriptedDesktop& desktop, platform::ui::Form& form);

  void Type(const std::string& label, const std::string& text) override;
  void TypeHere(const std::string& text) override;
  void Press(platform::ui::Key key) override;
  void ClickInText(const std::string& label, std::size_t position) override;
  void SelectText(const std::string& label, std::size_t start, std::size_t end) override;
  void Paste(const std::string& label, const std::string& text) override;
  void Focus(const std::string& label) override;
  void Press(const std::string& button) override;
  void PressBeside(const std::string& label, const std::string& button) override;
  void AccessKey(char key) override;
  void Check(const std::string& label, bool checked) override;
  void ChooseOption(const std::string& group, const std::string& option) override;
  void Choose(const std::string& label, const std::string& item) override;
  void DoubleClickItem(const std::string& label, const std::string& item) override;
  void ClickRow(const std::string& label, int row) override;
  void DoubleClickRow(const std::string& label, int row) override;
  void ClickAt(const std::string& label, int x, int y) override;
  void DoubleClickAt(const std::string& label, int x, int y) override;
  void DragOver(const std::string& label, int x, int y, int to_x, int to_y) override;
  void ScrollCanvas(const std::string& label, platform::ui::Canvas::Scroll what, int thumb) override;
  void StepSpin(const std::string& buddy_label, int direction) override;
  void SelectTab(const std::string& caption) override;
  std::string HelpOn(const std::string& label) override;
  void CloseWindow() override;

  std::string Caption() override;
  std::string Text(const std::string& label) override;
  std::pair<std::size_t, std::size_t> Selection(const std::string& label) override;
  bool IsVisible(const std::string& label) override;
  bool IsEnabled(const std::string& label) override;
  bool IsChecked(const std::string& label) override;
  std::string ChosenOption(const std::string& group) override;
  std::vector<std::string> Items(const std::string& label) override;
  std::vector<std::vector<std::string>> Rows(const std::string& label) override;
  int SelectedRow(const std::string& label) override;
  std::vector<std::string> Tabs() override;
  std::string FocusedLabel() override;
  std::string Screen() override;

 private:
  [[noreturn]] void Fail(const std::string& what);
  /// The dialog, or the sheet's current page; null in a sheet without pages. Fails when the window has ended.
  platform::ui::Form* Front();
  /// The same where there has to be one.
  platform::ui::Form& Shown();
  /// The control in front with exactly that label, or null.
  platform::ui::Control* Look(const std::string& label);
  /// The control with that label, whatever its state.
  platform::ui::Control& Find(const std::string& label);
  /// The control of that kind with that label, for looking at.
  template <typename Kind>
  Kind& Find(const std::string& label);
  /// The same, for touching: visible and enabled.
  template <typename Kind>
  Kind& Touch(const std::string& label);
  void RequireReach(const platform::ui::Control& control);
  int ItemIndex(const platform::ui::ItemList& list, const std::string& item);
  void RequireRow(const platform::ui::ListView& list, int row);
  void TypeCharacters(const std::string& text);
  void PressSheetButton(platform::ui::SheetButton button, const std::string& label);
  bool PressSheetAccessKey(char key);
  void PressSheetKey(platform::ui::Key key);
  /// Moves the focus to the control, as a click does, and runs what the click sets off.
  void Click(platform::ui::Control& control, const std::function<void()>& action);
  /// Runs what a person sets off, and then what was posted meanwhile. Nothing comes of it while the program
  /// waits.
  void Do(const std::function<void()>& action);

  ScriptedDesktop& desktop_;
  platform::ui::Modal* modal_ = nullptr;
  platform::ui::PropertySheet* sheet_ = nullptr;
  platform::ui::Form* form_ = nullptr;
};

template <typename Kind>
Kind& ScriptedPerson::Find(const std::string& label) {
  for (platform::ui::Control* control : Shown().Controls()) {
    auto* wanted = dynamic_cast<Kind*>(control);
    if (wanted != nullptr && control->Label() == label && control->Visible()) return *wanted;
  }
  auto* hidden = dynamic_cast<Kind*>(&Find(label));
  if (hidden == nullptr) Fail("\"" + label + "\" is another kind of control");
  return *hidden;
}

template <typename Kind>
Kind& ScriptedPerson::Touch(const std::string& label) {
  Kind& control = Find<Kind>(label);
  RequireReach(control);
  return control;
}

}  // namespace desktops
