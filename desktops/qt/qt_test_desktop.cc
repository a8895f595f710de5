// SPDX-License-Identifier: MIT
#include "desktops/qt/qt_test_desktop.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTest>
#include <QTimer>

#include "desktops/qt/cut_controls.h"
#include "desktops/qt/guard.h"
#include "desktops/qt/modal_window.h"
#include "desktops/qt/offscreen.h"
#include "desktops/qt/qt_person.h"
#include "desktops/qt/texts.h"

namespace desktops {

using platform::ui::Answer;
using qt::FromQt;
using qt::ToQt;
using Kind = Script::Expectation::Kind;

namespace {

QMessageBox::StandardButton ButtonOf(Answer answer) {
  switch (answer) {
    case Answer::kOk:
      return QMessageBox::Ok;
    case Answer::kYes:
      return QMessageBox::Yes;
    case Answer::kNo:
      return QMessageBox::No;
    case Answer::kCancel:
      return QMessageBox::Cancel;
  }
  return QMessageBox::NoButton;
}

}  // namespace

void QtTestDesktop::EnsureApplication() {
  static int argument_count = 1;
  static char name[] = "tests";
  static char* arguments[] = {name, nullptr};
  // Tests put no windows on a developer's screen unless asked to.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const qt::OffscreenScreen screen;
  // Never destroyed: at the end of the process its windows would outlive what they are drawn with.
  static auto* application = new QApplication(argument_count, arguments);
  static_cast<void>(application);
}

QtTestDesktop::QtTestDesktop() {
  qt::SetFailedHandlerReport(
      [this](const char* what) { script.AddFailure(std::string("A handler threw: ") + what); });
}

QtTestDesktop::~QtTestDesktop() { qt::SetFailedHandlerReport(nullptr); }

int QtTestDesktop::Exec(QDialog& window) {
  QTimer::singleShot(0, &window, [this, &window] { Play(window); });
  return QtDesktop::Exec(window);
}

// A program that goes on by itself may have opened another window over this one. Its person comes first; then the window is
// brought back, as a window manager does.
void QtTestDesktop::Play(QDialog& window) {
  if (QApplication::activeModalWidget() != &window) {
    QTimer::singleShot(1, &window, [this, &window] { Play(window); });
    return;
  }
  window.activateWindow();
  if (!QTest::qWaitForWindowActive(&window)) {
    script.AddFailure("The window \"" + FromQt(window.windowTitle()) + "\" did not become the active one");
  }
  if (auto* modal = dynamic_cast<qt::ModalWindow*>(&window)) {
    PlayWindow(*modal);
  } else if (auto* box = qobject_cast<QMessageBox*>(&window)) {
    PlayMessage(*box);
  } else {
    PlayFileDialog(dynamic_cast<QFileDialog&>(window));
  }
}

void QtTestDesktop::PlayWindow(qt::ModalWindow& window) {
  Script::Expectation expected;
  if (script.Take(Kind::kWindow, FromQt(window.windowTitle()), expected)) {
    QtPerson person(window, last_help_text);
    script.Run(expected.story, person);
    if (window.ShownModal().Ended()) return;
    script.AddFailure("Still open when its story was over:\n" + person.Screen());
  }
  window.reject();
  window.ShownModal().EndModal(platform::ui::kCancel);
}

platform::ui::Answer QtTestDesktop::ShowMessage(const platform::ui::Message& message) {
  const QScopedValueRollback<const platform::ui::Message*> shown(message_, &message);
  return QtDesktop::ShowMessage(message);
}

void QtTestDesktop::PlayMessage(QMessageBox& box) {
  if (message_ == nullptr || message_->text != FromQt(box.text())) {
    script.AddFailure("The toolkit itself says: " + FromQt(box.text()));
    return box.reject();
  }
  QTest::mouseClick(box.button(ButtonOf(script.AnswerTo(*message_))), Qt::LeftButton);
}

void QtTestDesktop::PlayFileDialog(QFileDialog& dialog) {
  Script::Expectation expected;
  if (!script.Take(Kind::kFile, FromQt(dialog.windowTitle()), expected) || !PlayChoice(dialog, expected) ||
      expected.path.empty()) {
    return dialog.reject();
  }
  QTest::keyClick(dialog.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
}

bool QtTestDesktop::PlayChoice(QFileDialog& dialog, const Script::Expectation& expected) {
  const bool must_exist = dialog.fileMode() != QFileDialog::AnyFile;
  if (must_exist && !expected.path.empty() && !QFileInfo::exists(ToQt(expected.path))) {
    script.AddFailure("The file dialog refuses " + expected.path + ", which does not exist");
    return false;
  }
  auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
  name->setCompleter(nullptr);
  name->selectAll();
  if (!expected.path.empty()) name->insert(ToQt(expected.path));
  QtPerson person(dialog, last_help_text);
  script.Run(expected.story, person);
  return true;
}

// A window that was just shown is laid out in several steps, some of them by messages of the window system.
std::vector<std::string> QtTestDesktop::CutControls() const {
  std::vector<std::string> cut;
  const auto look = [&cut] {
    QCoreApplication::sendPostedEvents();
    const QWidget* front = QApplication::activeModalWidget();
    cut = front != nullptr ? qt::CutControls(*front) : std::vector<std::string>{"there is no window"};
    return cut.empty();
  };
  return QTest::qWaitFor(look, 1000) ? std::vector<std::string>{} : cut;
}

bool QtTestDesktop::ShowsWaitCursor() const {
  const QCursor* cursor = QGuiApplication::overrideCursor();
  return cursor != nullptr && cursor->shape() == Qt::WaitCursor;
}

void QtTestDesktop::Sleep(std::uint32_t milliseconds) {
  script.sleeps.push_back(milliseconds);
  QtDesktop::Sleep(0);
}

void QtTestDesktop::ShowHelpText(platform::ui::Window* beside, const std::string& text) {
  last_help_text = text;
  QtDesktop::ShowHelpText(beside, text);
}

}  // namespace desktops
