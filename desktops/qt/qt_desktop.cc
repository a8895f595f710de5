// SPDX-License-Identifier: MIT
#include "desktops/qt/qt_desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QMessageBox>
#include <QMimeData>
#include <QStyle>
#include <QTimer>

#include "desktops/qt/file_choice.h"
#include "desktops/qt/guard.h"
#include "desktops/qt/help_popup.h"
#include "desktops/qt/icons.h"
#include "desktops/qt/input_gate.h"
#include "desktops/qt/sheet_window.h"
#include "desktops/qt/sound.h"
#include "desktops/qt/texts.h"

namespace desktops {

using namespace platform::ui;

namespace {

QWidget* ActiveParent() {
  QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr ? modal : QApplication::activeWindow();
}

std::unique_ptr<qt::ModalWindow> MakeWindow(Modal& modal) {
  if (auto* sheet = dynamic_cast<PropertySheet*>(&modal)) {
    return std::make_unique<qt::SheetWindow>(*sheet, ActiveParent());
  }
  return std::make_unique<qt::DialogWindow>(dynamic_cast<Dialog&>(modal), ActiveParent());
}

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kNone:
      return QMessageBox::NoIcon;
    case MessageIcon::kWarning:
      return QMessageBox::Warning;
    case MessageIcon::kQuestion:
      return QMessageBox::Question;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::kOk:
      return QMessageBox::Ok;
    case Buttons::kYesNo:
    case Buttons::kNoYes:
      return QMessageBox::Yes | QMessageBox::No;
    case Buttons::kYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

Answer AnswerOf(int pressed) {
  switch (pressed) {
    case QMessageBox::Ok:
      return Answer::kOk;
    case QMessageBox::Yes:
      return Answer::kYes;
    case QMessageBox::No:
      return Answer::kNo;
    default:
      return Answer::kCancel;
  }
}

std::string ChosenPath(const QFileDialog& dialog) {
  const QStringList files = dialog.selectedFiles();
  return files.isEmpty() ? std::string() : qt::FromQt(files.first());
}

}  // namespace

QtDesktop::QtDesktop() : before_(SetCurrent(this)) {}

QtDesktop::~QtDesktop() { SetCurrent(before_); }

int QtDesktop::Exec(QDialog& window) {
  const qt::WaitCursorCount::Uncovered uncovered(wait_cursor_);
  const qt::InputGate taken(true);
  return window.exec();
}

int QtDesktop::RunModal(Modal& modal) {
  qt::Guarded([&] {
    modal.OpenWindow();
    if (!modal.Ended()) Exec(*MakeWindow(modal));
  });
  // The window could not be made, or the application went down while it was open.
  modal.EndModal(kCancel);
  modal.CloseWindow();
  return modal.Result();
}

Answer QtDesktop::ShowMessage(const Message& message) {
  QMessageBox box(IconOf(message.icon), qt::ToQt(message.title), qt::ToQt(message.text),
                  ButtonsOf(message.buttons), ActiveParent());
  box.setTextFormat(Qt::PlainText);
  if (message.buttons == Buttons::kNoYes) box.setDefaultButton(QMessageBox::No);
  return AnswerOf(Exec(box));
}

bool QtDesktop::ChooseFile(FileDialog& dialog) {
  dialog.Create();
  qt::FileChoice choice(dialog, ActiveParent());
  const bool accepted = Exec(choice) == QDialog::Accepted;
  if (accepted) dialog.OnFileAccepted(ChosenPath(choice));
  dialog.Destroy();
  return accepted;
}

bool QtDesktop::ChooseFolder(FolderDialog& dialog) {
  QFileDialog choice(ActiveParent(), qt::ToQt(dialog.Title()));
  choice.setOption(QFileDialog::DontUseNativeDialog);
  choice.setOption(QFileDialog::ShowDirsOnly);
  choice.setFileMode(QFileDialog::Directory);
  if (Exec(choice) != QDialog::Accepted) return false;
  dialog.SetPath(ChosenPath(choice));
  return true;
}

void QtDesktop::Sleep(std::uint32_t milliseconds) {
  QEventLoop loop;
  const qt::InputGate shut(false);
  QTimer::singleShot(static_cast<int>(milliseconds), &loop, &QEventLoop::quit);
  loop.exec();
}

void QtDesktop::Beep() { QApplication::beep(); }

std::optional<std::string> QtDesktop::ClipboardText() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (data == nullptr || !data->hasText()) return std::nullopt;
  return qt::FromQt(data->text());
}

void QtDesktop::SetClipboardText(const std::string& text) {
  QGuiApplication::clipboard()->setText(qt::ToQt(text));
}

// Window systems activate a window some time after it was shown; the modal one is in front of its program at once.
Window* QtDesktop::ForegroundWindow() {
  auto* owner = dynamic_cast<qt::WidgetOwner*>(ActiveParent());
  return owner != nullptr ? &owner->ShownWindow() : nullptr;
}

// A file that cannot be opened is a sound that does not play.
std::unique_ptr<Sound> QtDesktop::OpenSound(const std::string& path) {
  std::unique_ptr<Sound> sound = qt::OpenSoundFile(path);
  return sound != nullptr ? std::move(sound) : Desktop::OpenSound(path);
}

std::vector<Bitmap> QtDesktop::ExtractIcons(const std::string& path, std::size_t limit) {
  std::vector<Bitmap> icons = Desktop::ExtractIcons(path, limit);
  return icons.empty() ? qt::PictureOfFile(path) : icons;
}

// Callers ask whether folder pickers and file previews are there. They came with release 4 of the system that
// counts this way; a desktop that runs Qt has them.
int QtDesktop::SystemMajorVersion() { return 10; }

int QtDesktop::IconSpacing() {
  constexpr int kRoomAroundIcon = 43;
  return QApplication::style()->pixelMetric(QStyle::PM_LargeIconSize) + kRoomAroundIcon;
}

void QtDesktop::ShowHelpText(Window* beside, const std::string& text) {
  const QWidget* widget = qt::WidgetOwner::WidgetOf(beside);
  QWidget* window = ActiveParent();
  if (widget == nullptr) widget = window;
  const QRect area = widget == nullptr ? QRect(QCursor::pos(), QSize(1, 1))
                                       : QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size());
  (new qt::HelpPopup(qt::ToQt(text), window))->ShowBeside(area);
}

void QtDesktop::Post(std::function<void()> task) {
  QMetaObject::invokeMethod(
      qApp, [task = std::move(task)] { qt::Guarded(task); }, Qt::QueuedConnection);
}

}  // namespace desktops
