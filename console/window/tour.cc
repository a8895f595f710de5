// SPDX-License-Identifier: MIT
#include "console/window/tour.h"

#include <cstdio>
#include <utility>

namespace alertconsole {
namespace {

constexpr int kLookMilliseconds = 60;
constexpr qint64 kSettleMilliseconds = 120;  // until a new window has laid itself out

/// Buttons that store, delete, send or end something.
const QStringList kNotPressed = {"OK",     "Cancel",  "Apply",           "Close",  "Delete", "Remove",
                                 "Finish", "Open",    "Choose",          "Play",   "Stop",   "Yes",
                                 "No",     "Deliver", "Stop Delivering", "Correct"};

QString Plain(QString text) { return text.remove('&').remove("...").trimmed(); }

QString FileName(const QString& text) {
  QString name = Plain(text).toLower();
  name.replace(QRegularExpression("[^a-z0-9]+"), "-");
  return name.remove(QRegularExpression("^-|-$"));
}

QWidget* PageOf(QWidget& window) {
  auto* tabs = window.findChild<QTabWidget*>();
  return tabs != nullptr && tabs->count() > 0 ? tabs->currentWidget() : &window;
}

/// Whether the toolkit has made the window, so that its insides are no affair of ours.
bool IsToolkits(QWidget& window) {
  return qobject_cast<QFileDialog*>(&window) != nullptr || qobject_cast<QMessageBox*>(&window) != nullptr;
}

/// In the order of their places on the screen.
QList<QAbstractButton*> ButtonsOf(QWidget& window) {
  QList<QAbstractButton*> buttons;
  if (IsToolkits(window)) return buttons;
  for (QAbstractButton* button : PageOf(window)->findChildren<QPushButton*>())
    if (button->isVisible() && button->isEnabled() && !kNotPressed.contains(Plain(button->text())))
      buttons << button;
  return buttons;
}

/// A row that is chosen brings the buttons to life that act on one.
void ChooseRows(QWidget& window) {
  if (IsToolkits(window)) return;
  for (auto* view : PageOf(window)->findChildren<QAbstractItemView*>()) {
    if (!view->isVisible() || view->model() == nullptr || view->model()->rowCount() == 0) continue;
    view->setFocus();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Home, Qt::NoModifier),
        release(QEvent::KeyRelease, Qt::Key_Home, Qt::NoModifier);
    QCoreApplication::sendEvent(view, &press);
    QCoreApplication::sendEvent(view, &release);
  }
}

void Settle() {
  QElapsedTimer shown;
  for (shown.start(); shown.elapsed() < kSettleMilliseconds;)
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
}

}  // namespace

void Tour::Look(QWidget& window, const QString& name) {
  Settle();
  view_(window, name);
}

void Tour::Visit(const QString& name, const std::function<void()>& open) {
  first_name_ = name;
  LookLater(++visit_);
  open();
  ++visit_;
  stops_.clear();
}

// A new timer each time: one whose handler runs an event loop of its own would not come again in it.
void Tour::LookLater(int visit) {
  QTimer::singleShot(kLookMilliseconds, this, [this, visit] {
    if (visit != visit_) return;
    LookLater(visit);
    if (std::exchange(looking_, true)) return;  // a window is being looked at
    GoOn();
    looking_ = false;
  });
}

void Tour::GoOn() {
  QWidget* front = QApplication::activeModalWidget();
  if (front == nullptr) return;
  const auto is_over = [front](const Stop& stop) {
    return stop.window != front && (stop.window.isNull() || !stop.window->isVisible());
  };
  while (!stops_.empty() && is_over(stops_.back())) stops_.pop_back();
  if (stops_.empty() || stops_.back().window != front) return Arrive(*front);
  Stop& stop = stops_.back();
  if (!stop.viewed) return LookAtPage(stop);
  if (!PressNext(stop) && !NextPage(stop)) Leave(stop);
}

void Tour::Arrive(QWidget& window) {
  if (const auto* message = qobject_cast<QMessageBox*>(&window)) {
    std::printf("message: %s\n", qPrintable(message->text()));
    window.close();
    return;
  }
  const QString name = stops_.empty() ? first_name_ : FileName(window.windowTitle());
  const bool is_new = seen_.insert(name).second;
  stops_.push_back({&window, name, 0, 0, !is_new});
  if (!is_new) Leave(stops_.back());
}

void Tour::LookAtPage(Stop& stop) {
  const auto* tabs = stop.window->findChild<QTabWidget*>();
  const bool is_page = tabs != nullptr && tabs->count() > 0;
  ChooseRows(*stop.window);
  Look(*stop.window, is_page ? stop.name + '-' + FileName(tabs->tabText(tabs->currentIndex())) : stop.name);
  stop.viewed = true;
}

bool Tour::PressNext(Stop& stop) {
  const QList<QAbstractButton*> buttons = ButtonsOf(*stop.window);
  if (stop.button >= buttons.size()) return false;
  QMetaObject::invokeMethod(buttons[stop.button++], "click", Qt::QueuedConnection);
  return true;
}

bool Tour::NextPage(Stop& stop) {
  auto* tabs = stop.window->findChild<QTabWidget*>();
  if (tabs == nullptr || stop.page + 1 >= tabs->count()) return false;
  tabs->setCurrentIndex(++stop.page);
  stop.button = 0;
  stop.viewed = false;
  return true;
}

// Escape goes where a person's would. A window that does not mind it is closed, so that the tour comes to its end.
void Tour::Leave(Stop& stop) {
  QWidget* window = stop.window;
  if (std::exchange(stop.left, true)) {
    deaf_to_escape_ << stop.name;
    QMetaObject::invokeMethod(window, "close", Qt::QueuedConnection);
    return;
  }
  QWidget* focus = window->focusWidget() != nullptr ? window->focusWidget() : window;
  QCoreApplication::postEvent(focus, new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
}

}  // namespace alertconsole
