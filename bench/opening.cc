// SPDX-License-Identifier: MIT
#include "bench/opening.h"

#include <QtWidgets>
#include <chrono>
#include <cstdio>
#include <optional>
#include <vector>

#include "bench/bare_window.h"
#include "bench/measure.h"

namespace bench {
namespace {

/// Waits for the next window to be painted, calls `then` with it once all in it is painted too, and closes it.
class FirstPaint : public QObject {
 public:
  explicit FirstPaint(std::function<void(QWidget&)> then) : then_(std::move(then)) {
    qApp->installEventFilter(this);
  }

 private:
  // A window is painted before what is in it, in one go.
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* window = event->type() == QEvent::Paint ? qobject_cast<QDialog*>(object) : nullptr;
    if (window == nullptr) return false;
    qApp->removeEventFilter(this);
    Require(qobject_cast<QMessageBox*>(window) == nullptr, "a message came instead of a window");
    const auto end = [this, window] {
      then_(*window);
      window->close();
    };
    QMetaObject::invokeMethod(this, end, Qt::QueuedConnection);
    return false;
  }

  const std::function<void(QWidget&)> then_;
};

double OpeningTime(const Open& open) {
  const auto start = std::chrono::steady_clock::now();
  double time = 0;
  const FirstPaint painted([&](QWidget&) {
    time = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
  });
  open();
  return time;
}

BareWindow BareCopy(const Open& open) {
  std::optional<BareWindow> copy;
  const FirstPaint painted([&](QWidget& window) { copy.emplace(window); });
  open();
  Require(copy.has_value(), "a window did not open");
  return *copy;
}

}  // namespace

void CompareOpenings(const std::string& title, double aim, int repetitions, const Open& open) {
  const BareWindow bare = BareCopy(open);
  const Open open_bare = [&] { bare.Exec(); };
  std::vector<double> times[2];
  OpeningTime(open_bare);
  for (int i = 0; i < repetitions; ++i) {  // in turn, so that whatever else the machine does meets both alike
    times[0].push_back(OpeningTime(open));
    times[1].push_back(OpeningTime(open_bare));
  }
  const double ours = Summarise(times[0]).median, other = Summarise(times[1]).median;
  std::printf("%-44s %9.2f %9.2f %7.2f %5.0f  %s\n", title.c_str(), ours, other, ours / other, aim,
              ours <= aim * other ? "met" : "missed");
}

void PrintHeading() {
  std::printf("%-44s %9s %9s %7s %5s\n", "milliseconds, median", "library", "bare", "ratio", "aim");
}

}  // namespace bench
