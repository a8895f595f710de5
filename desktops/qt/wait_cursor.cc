// SPDX-License-Identifier: MIT
#include "desktops/qt/wait_cursor.h"

#include <QCursor>
#include <QGuiApplication>
#include <utility>

namespace desktops::qt {

WaitCursorCount::~WaitCursorCount() { TakeAway(); }

void WaitCursorCount::Show() {
  ++depth_;
  Restore();
}

void WaitCursorCount::Hide() {
  if (depth_ > 0) --depth_;
  if (depth_ == 0) TakeAway();
}

void WaitCursorCount::TakeAway() {
  if (shown_) QGuiApplication::restoreOverrideCursor();
  shown_ = false;
}

void WaitCursorCount::Restore() {
  if (shown_ || depth_ == 0) return;
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  shown_ = true;
}

WaitCursorCount::Uncovered::Uncovered(WaitCursorCount& count)
    : count_(count), depth_(std::exchange(count.depth_, 0)) {
  count_.TakeAway();
}

WaitCursorCount::Uncovered::~Uncovered() {
  count_.TakeAway();
  count_.depth_ = depth_;
  count_.Restore();
}

}  // namespace desktops::qt
