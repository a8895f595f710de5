// SPDX-License-Identifier: MIT
#include "console/alertconsole_tour.h"

#include <cstdio>

namespace alertconsole {
namespace {

constexpr int kLookMilliseconds = 60;
constexpr qint64 kSettleMilliseconds = 120;  // until a new window has laid itself out

/// Buttons that store, delete, send or end something.
const QStringList kNotPressed = {"OK",     "Cancel", "Apply",  "Close", "Test", "Delete", "Remove",
                                 "Finish", "Open",   "Choose", "Play",  "Stop", "Yes",    "No"};

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

/// In the order of their places on the screen.
QList<QAbstractButton*> ButtonsOf(QWidget& window) {
  QList<QAbstractButton*> buttons;
  if (qobject_cast<QFileDialog*>(&window) != nullptr || qobject_cast<QMessageBox*>(&window) != nullptr)
    return buttons;
  for (QAbstractButton* button : PageOf(window)->findChildren<QPushButton*>())
    if (button->isVisible() && button->isEnabled() && !kNotPressed.contains(Plain(button->text())))
      buttons << button;
  return buttons;
}

/// A row that is chosen brings the buttons to life that act on one.
void ChooseRows(QWidget& window) {
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

Tour::Tour(const QString& folder) : folder_(folder) {
  if (!QDir().mkpath(folder)) Fail("cannot make the folder " + folder);
}

void Tour::Fail(const QString& what) {
  failed_ = true;
  std::fprintf(stderr, "alertconsole: %s\n", qPrintable(what));
}

void Tour::Take(QWidget& window, const QString& name) {
  Settle();
  const QString path = folder_.filePath(name + ".png");
  if (!window.grab().save(path)) return Fail("cannot write " + path);
  std::printf("%s\n", qPrintable(path));
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
    if (std::exchange(looking_, true)) return;  // a picture is being taken
    Look();
    looking_ = false;
  });
}

void Tour::Look() {
  QWidget* front = QApplication::activeModalWidget();
  if (front == nullptr) return;
  const auto is_over = [front](const Stop& stop) {
    return stop.window != front && (stop.window.isNull() || !stop.window->isVisible());
  };
  while (!stops_.empty() && is_over(stops_.back())) stops_.pop_back();
  if (stops_.empty() || stops_.back().window != front) return Arrive(*front);
  Stop& stop = stops_.back();
  if (!stop.pictured) return TakePage(stop);
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

void Tour::TakePage(Stop& stop) {
  const auto* tabs = stop.window->findChild<QTabWidget*>();
  const bool is_page = tabs != nullptr && tabs->count() > 0;
  ChooseRows(*stop.window);
  Take(*stop.window, is_page ? stop.name + '-' + FileName(tabs->tabText(tabs->currentIndex())) : stop.name);
  stop.pictured = true;
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
  stop.pictured = false;
  return true;
}

void Tour::Leave(Stop& stop) { QMetaObject::invokeMethod(stop.window.data(), "close", Qt::QueuedConnection); }

}  // namespace alertconsole
