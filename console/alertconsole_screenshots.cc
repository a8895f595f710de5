// SPDX-License-Identifier: MIT
#include "console/alertconsole_screenshots.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QTabWidget>
#include <QTimer>
#include <cstdio>

#include "console/alertconsole_window.h"

namespace alertconsole {
namespace {

constexpr std::uint32_t kInternetMail = 5;   // as records hold the type
constexpr qint64 kSettleMilliseconds = 150;  // until a new window has laid itself out

QElapsedTimer Started() {
  QElapsedTimer timer;
  timer.start();
  return timer;
}

/// Takes the pictures while the sheet's own event loop runs: it looks at whatever window is in front.
class Photographer : public QObject {
 public:
  explicit Photographer(const QString& folder) : folder_(folder) {
    timer_.setInterval(100);
    connect(&timer_, &QTimer::timeout, this, [this] { LookAtFront(); });
    timer_.start();
  }

  bool Failed() const { return failed_; }
  int Pages() const { return pages_; }

  void Take(QWidget& window, const QString& name) {
    for (QElapsedTimer shown = Started(); shown.elapsed() < kSettleMilliseconds;)
      QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
    const QString path = folder_.filePath(name);
    if (window.grab().save(path)) {
      std::printf("%s\n", qPrintable(path));
    } else {
      Fail("cannot write " + path);
    }
  }

  void Fail(const QString& what) {
    failed_ = true;
    std::fprintf(stderr, "alertconsole: %s\n", qPrintable(what));
  }

 private:
  void LookAtFront() {
    QWidget* front = QApplication::activeModalWidget();
    if (front == nullptr) return;
    timer_.stop();
    if (auto* tabs = front->findChild<QTabWidget*>()) {
      TakePages(*front, *tabs);
    } else {
      const auto* message = qobject_cast<QMessageBox*>(front);
      Fail(message != nullptr ? message->text() : "an unexpected window: " + front->windowTitle());
    }
    front->close();
    timer_.start();
  }

  void TakePages(QWidget& sheet, QTabWidget& tabs) {
    for (int i = 0; i < tabs.count(); ++i, ++pages_) {
      tabs.setCurrentIndex(i);
      const QString page = tabs.tabText(i).toLower().replace(' ', '-');
      Take(sheet, "internet-mail-" + page + ".png");
    }
  }

  QDir folder_;
  QTimer timer_;
  bool failed_ = false;
  int pages_ = 0;
};

}  // namespace

int WriteScreenshots(AlertingLibrary& library, const QString& folder) {
  Photographer photographer(folder);
  if (!QDir().mkpath(folder)) photographer.Fail("cannot make the folder " + folder);
  MainWindow window(library);
  window.show();
  window.ShowServices();
  photographer.Take(window, "console.png");
  const int service = window.FirstOfType(kInternetMail);
  if (service < 0) {
    photographer.Fail("there is no Internet Mail service; run \"alertctl init\"");
  } else {
    window.OpenSheet(service);
    if (photographer.Pages() == 0) photographer.Fail("the sheet of the Internet Mail service did not open");
  }
  return photographer.Failed() ? 1 : 0;
}

}  // namespace alertconsole
