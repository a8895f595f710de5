// SPDX-License-Identifier: MIT
// What a person does with lists, options and tabs, and what there is to see in them.
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>
#include <QTreeWidget>

#include "desktops/qt/edit_view.h"
#include "desktops/qt/form_view.h"
#include "desktops/qt/qt_person.h"
#include "desktops/qt/texts.h"

namespace desktops {

using qt::FromQt;
using qt::ToQt;

namespace {

QRadioButton* OptionOf(const QWidget& group, const std::string& caption) {
  for (auto* option : group.findChildren<QRadioButton*>()) {
    if (FromQt(option->text()) == caption) return option;
  }
  return nullptr;
}

}  // namespace

void QtPerson::ChooseOption(const std::string& group, const std::string& option) {
  QRadioButton* button = OptionOf(Reachable(group), option);
  if (button == nullptr || !button->isEnabled()) Fail("\"" + group + "\" has no option \"" + option + "\"");
  Click(*button);
}

// Opens the list, walks to the item and takes it, all by keyboard.
void QtPerson::ChooseInCombo(QComboBox& combo, const QString& item) {
  const int index = combo.findText(item, Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (index < 0) Fail("The list has no item \"" + FromQt(item) + "\"");
  combo.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&combo, Qt::Key_Down, Qt::AltModifier);
  QWidget* list = combo.view();
  QTest::keyClick(list, Qt::Key_Home);
  for (int i = 0; i < index; ++i) QTest::keyClick(list, Qt::Key_Down);
  QTest::keyClick(list, Qt::Key_Return);
  Settle();
}

void QtPerson::Choose(const std::string& label, const std::string& item) {
  QWidget& widget = Reachable(label);
  if (auto* combo = qobject_cast<QComboBox*>(&widget)) return ChooseInCombo(*combo, ToQt(item));
  auto& list = ReachableAs<QTreeWidget>(label);
  ClickRowOf(list, RowOfItem(list, item), false);
}

void QtPerson::DoubleClickItem(const std::string& label, const std::string& item) {
  auto& list = ReachableAs<QTreeWidget>(label);
  ClickRowOf(list, RowOfItem(list, item), true);
}

void QtPerson::ClickRow(const std::string& label, int row) {
  ClickRowOf(ReachableAs<QTreeWidget>(label), row, false);
}

void QtPerson::DoubleClickRow(const std::string& label, int row) {
  ClickRowOf(ReachableAs<QTreeWidget>(label), row, true);
}

int QtPerson::RowOfItem(QTreeWidget& list, const std::string& item) {
  for (int row = 0; row < list.topLevelItemCount(); ++row) {
    if (qt::WidgetFinder::RowText(*list.topLevelItem(row)) == item) return row;
  }
  Fail("The list has no item \"" + item + "\"");
}

// A row below the last stands for the empty room there.
QPoint QtPerson::RowPoint(QTreeWidget& list, int row) {
  QTreeWidgetItem* item = list.topLevelItem(row);
  if (item == nullptr) return {5, list.viewport()->height() - 2};
  list.scrollToItem(item);
  QRect place = list.visualItemRect(item);
  return {place.left() + 5, place.center().y()};
}

void QtPerson::ClickRowOf(QTreeWidget& list, int row, bool twice) {
  if (row >= list.topLevelItemCount()) Fail("The list has no row " + std::to_string(row));
  list.setFocus(Qt::MouseFocusReason);
  const QPoint point = RowPoint(list, row);
  const QPointer<QWidget> viewport = list.viewport();
  QTest::mouseClick(viewport, Qt::LeftButton, {}, point);
  if (twice && viewport != nullptr) QTest::mouseDClick(viewport, Qt::LeftButton, {}, point);
  Settle();
}

std::string QtPerson::Caption() {
  return window_ != nullptr ? FromQt(window_->windowTitle()) : std::string();
}

std::string QtPerson::Text(const std::string& label) {
  const QWidget& widget = Any(label);
  const auto* line = qobject_cast<const QLineEdit*>(&widget);
  if (line == nullptr || line->echoMode() == QLineEdit::Normal) return qt::WidgetFinder::TextOf(widget);
  return std::string(static_cast<std::size_t>(line->text().toUcs4().size()), '*');
}

std::pair<std::size_t, std::size_t> QtPerson::Selection(const std::string& label) {
  QWidget& field = Any(label);
  auto* view = dynamic_cast<qt::EditView*>(&field);
  if (view == nullptr) Fail("\"" + label + "\" is no text field");
  const bool multi_line = qobject_cast<QPlainTextEdit*>(&field) != nullptr;
  const std::string text = qt::WidgetFinder::TextOf(field);
  const qt::ShownSelection shown = view->Selection();
  return {qt::BytePosition(text, std::min(shown.anchor, shown.caret), multi_line),
          qt::BytePosition(text, std::max(shown.anchor, shown.caret), multi_line)};
}

bool QtPerson::IsVisible(const std::string& label) { return Any(label).isVisible(); }

bool QtPerson::IsEnabled(const std::string& label) { return Any(label).isEnabled(); }

bool QtPerson::IsChecked(const std::string& label) { return AnyAs<QAbstractButton>(label).isChecked(); }

std::string QtPerson::ChosenOption(const std::string& group) {
  for (const auto* option : Any(group).findChildren<QRadioButton*>()) {
    if (option->isChecked()) return FromQt(option->text());
  }
  return {};
}

std::vector<std::string> QtPerson::Items(const std::string& label) {
  std::vector<std::string> items;
  QWidget& widget = Any(label);
  if (const auto* combo = qobject_cast<QComboBox*>(&widget)) {
    for (int i = 0; i < combo->count(); ++i) items.push_back(FromQt(combo->itemText(i)));
    return items;
  }
  const auto& list = AnyAs<QTreeWidget>(label);
  for (int row = 0; row < list.topLevelItemCount(); ++row)
    items.push_back(qt::WidgetFinder::RowText(*list.topLevelItem(row)));
  return items;
}

std::vector<std::vector<std::string>> QtPerson::Rows(const std::string& label) {
  std::vector<std::vector<std::string>> rows;
  const auto& list = AnyAs<QTreeWidget>(label);
  for (int row = 0; row < list.topLevelItemCount(); ++row) {
    auto& cells = rows.emplace_back();
    for (int i = 0; i < list.columnCount(); ++i) cells.push_back(FromQt(list.topLevelItem(row)->text(i)));
  }
  return rows;
}

int QtPerson::SelectedRow(const std::string& label) {
  auto& list = AnyAs<QTreeWidget>(label);
  const QList<QTreeWidgetItem*> selected = list.selectedItems();
  return selected.isEmpty() ? -1 : list.indexOfTopLevelItem(selected.first());
}

std::vector<std::string> QtPerson::Tabs() {
  std::vector<std::string> tabs;
  const auto* bar = window_->findChild<QTabBar*>();
  for (int i = 0; bar != nullptr && bar->isVisible() && i < bar->count(); ++i) {
    tabs.push_back(FromQt(bar->tabText(i)));
  }
  return tabs;
}

std::string QtPerson::FocusedLabel() {
  Settle();
  const QWidget* focused = QApplication::focusWidget();
  for (QWidget* at = focused != nullptr ? focused->parentWidget() : nullptr; at != nullptr;
       at = at->parentWidget()) {
    auto* view = dynamic_cast<qt::FormView*>(at);
    if (view == nullptr) continue;
    const platform::ui::Control* control = view->ControlOf(focused);
    return control != nullptr ? control->Label() : std::string();
  }
  return {};
}

std::string QtPerson::Screen() { return window_ != nullptr ? finder_.Screen() : "(no window)\n"; }

}  // namespace desktops
