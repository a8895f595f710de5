// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTreeView>

#include "alerting/alerting.h"
#include "console/site/starter.h"
#include "console/window/main_window.h"
#include "desktops/qt/qt_test_desktop.h"
#include "tests/support/service_fixture.h"
#include "tests/support/static_calls.h"

namespace alertconsole {

using desktops::Person;
using platform::GUID;

/// The console's window over a site of its own, with a person in front of the windows that it opens.
class MainWindowTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { desktops::QtTestDesktop::EnsureApplication(); }
  void TearDown() override {
    for (const std::string& failure : desktop_.script.Failures()) ADD_FAILURE() << failure;
  }

  MainWindow& Open() {
    window_ = std::make_unique<MainWindow>(calls_);
    window_->show();
    window_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    window_->ReadSite();
    return *window_;
  }
  MainWindow& OpenSetUp() {
    site::AddStarterData();
    return Open();
  }
  MainWindow& Window() { return *window_; }
  desktops::Script& Script() { return desktop_.script; }
  test_support::LibraryUnderTest& Library() { return library_; }

  void ShowPage(const char* title) {
    auto* tabs = window_->findChild<QTabWidget*>();
    for (int i = 0; i < tabs->count(); ++i)
      if (tabs->tabText(i) == title) tabs->setCurrentIndex(i);
    ASSERT_EQ(tabs->tabText(tabs->currentIndex()), title);
  }
  QTreeView& Table(const char* name) {
    for (QTreeView* table : window_->findChildren<QTreeView*>())
      if (table->accessibleName() == name) return *table;
    throw std::runtime_error(std::string("no table ") + name);
  }
  QLineEdit* Filter(const char* name) {
    for (QLineEdit* filter : window_->findChildren<QLineEdit*>())
      if (filter->accessibleName() == name) return filter;
    throw std::runtime_error(std::string("no filter ") + name);
  }
  /// The texts of a row, by the text in its first cell.
  QStringList Cells(const char* table, const QString& first) {
    QStringList cells;
    const QModelIndex row = RowOf(table, first);
    for (int column = 0; row.isValid() && column < row.model()->columnCount(); ++column)
      cells << row.siblingAtColumn(column).data().toString();
    return cells;
  }
  QModelIndex RowOf(const char* table, const QString& first) {
    const QAbstractItemModel& model = *Table(table).model();
    for (int row = 0; row < model.rowCount(); ++row)
      if (model.index(row, 0).data() == first) return model.index(row, 0);
    return {};
  }
  void Choose(const char* table, const QString& first) { Table(table).setCurrentIndex(RowOf(table, first)); }
  QString Chosen(const char* table) {
    return Table(table).currentIndex().siblingAtColumn(0).data().toString();
  }

  /// Of the page in front before the others.
  QAction& Command(const QString& text) {
    const QWidget* page = window_->findChild<QTabWidget*>()->currentWidget();
    for (QAction* action : page->findChildren<QAction*>() + window_->findChildren<QAction*>())
      if (QString(action->text()).remove('&').remove("...") == text) return *action;
    throw std::runtime_error("no command " + text.toStdString());
  }
  void Give(const QString& command) {
    ASSERT_TRUE(Command(command).isEnabled()) << command.toStdString();
    Command(command).trigger();
  }
  /// Whether a text stands anywhere in the window.
  bool Says(const QString& part) {
    for (const QLabel* label : window_->findChildren<QLabel*>())
      if (label->isVisible() && label->text().contains(part)) return true;
    return false;
  }
  void Press(const QString& button) {
    for (QPushButton* shown : window_->findChildren<QPushButton*>())
      if (shown->isVisible() && shown->text() == button) return shown->click();
    ADD_FAILURE() << "no button " << button.toStdString();
  }

 private:
  test_support::LibraryUnderTest library_;
  desktops::QtTestDesktop desktop_;
  const site::LibraryCalls calls_ = test_support::StaticCalls();
  std::unique_ptr<MainWindow> window_;
};

}  // namespace alertconsole
