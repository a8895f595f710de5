// SPDX-License-Identifier: MIT
#include "desktops/qt/wait_cursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace desktops::qt {

WaitCursorCount::~WaitCursorCount() { Suspend(); }

void WaitCursorCount::Show() {
  ++depth_;
  Restore();
}

void WaitCursorCount::Hide() {
  if (depth_ > 0) --depth_;
  if (depth_ == 0) Suspend();
}

void WaitCursorCount::Suspend() {
  if (shown_) QGuiApplication::restoreOverrideCursor();
  shown_ = false;
}

void WaitCursorCount::Restore() {
  if (shown_ || depth_ == 0) return;
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  shown_ = true;
}

}  // namespace desktops::qt
