// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>

#include "desktops/qt/widget_finder.h"
#include "desktops/scripted/person.h"

class QComboBox;
class QTreeWidget;

namespace desktops {

/// A person in front of a real window: acts by synthetic key and mouse events on its widgets.
class QtPerson : public Person {
 public:
  /// `help_text` is where the desktop keeps the help text it showed last.
  QtPerson(QWidget& window, std::string& help_text);

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
  /// The widget with that label, whatever its state; and one that can be acted on.
  QWidget& Any(const std::string& label);
  QWidget& Reachable(const std::string& label);
  template <typename Kind>
  Kind& ReachableAs(const std::string& label);
  template <typename Kind>
  Kind& AnyAs(const std::string& label);

  void Send(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {});
  void Click(QAbstractButton& button);
  void AskInMenu(QWidget& widget);
  QPoint PointInText(QWidget& field, std::size_t position);
  void ChooseInCombo(QComboBox& combo, const QString& item);
  QPoint RowPoint(QTreeWidget& list, int row);
  int RowOfItem(QTreeWidget& list, const std::string& item);
  void ClickRowOf(QTreeWidget& list, int row, bool twice);
  /// Lets everything that an action set off come to its end.
  void Settle();

  QPointer<QWidget> window_;
  qt::WidgetFinder finder_;
  std::string& help_text_;
};

template <typename Kind>
Kind& QtPerson::AnyAs(const std::string& label) {
  auto* widget = qobject_cast<Kind*>(&Any(label));
  if (widget == nullptr) Fail("\"" + label + "\" is no " + Kind::staticMetaObject.className());
  return *widget;
}

template <typename Kind>
Kind& QtPerson::ReachableAs(const std::string& label) {
  Reachable(label);
  return AnyAs<Kind>(label);
}

}  // namespace desktops
