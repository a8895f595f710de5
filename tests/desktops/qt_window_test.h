// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>

#include <QApplication>

#include "desktops/qt/qt_test_desktop.h"
#include "platform/ui/dialog.h"

namespace desktops::qt {

/// A dialog that keeps the reports it gets.
class ReportingDialog : public platform::ui::Dialog {
 public:
  ReportingDialog() : Dialog(nullptr, "Window") {}

  int changes = 0;
  std::vector<platform::ui::HelpEvent> help;

 private:
  void OnPersonChange(platform::ui::Control&) override { ++changes; }
  void OnHelp(const platform::ui::HelpEvent& event) override { help.push_back(event); }
};

/// Opens real windows and looks at their widgets.
class QtWindowTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { QtTestDesktop::EnsureApplication(); }
  void SetUp() override { desktop_ = std::make_unique<QtTestDesktop>(); }
  void TearDown() override {
    for (const std::string& failure : desktop_->script.Failures()) ADD_FAILURE() << failure;
  }

  QtTestDesktop& Desk() { return *desktop_; }

  /// Shows the dialog, runs `look` in front of it and closes it.
  void Show(platform::ui::Dialog& dialog, const std::function<void(Person&)>& look) {
    desktop_->script.ExpectWindow(dialog.Label(), [&](Person& person) {
      look(person);
      dialog.EndDialog(platform::ui::kOk);
    });
    dialog.RunModal();
  }

  /// The first widget of that kind in the window in front.
  template <typename Kind>
  static Kind& Widget() {
    Kind* widget = QApplication::activeModalWidget()->findChild<Kind*>();
    if (widget == nullptr) throw PersonError("no such widget");
    return *widget;
  }

  /// Lets what was put off run.
  static void Settle() { QCoreApplication::processEvents(); }

 private:
  std::unique_ptr<QtTestDesktop> desktop_;
};

}  // namespace desktops::qt
