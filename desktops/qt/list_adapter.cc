// SPDX-License-Identifier: MIT
#include "desktops/qt/list_adapter.h"

#include <QScrollBar>
#include <QTreeWidget>

namespace desktops::qt {

using platform::ui::Change;

void ShowAllColumns(QTreeWidget& list) {
  int width = list.verticalScrollBar()->sizeHint().width() + 2 * list.frameWidth();
  for (int i = 0; i < list.columnCount(); ++i) width += list.columnWidth(i);
  list.setMinimumWidth(width);
}

void ListAdapter::Refresh(Change change) {
  if (change == Change::kCurrent && !stale_) ShowCurrent();
  if (change != Change::kItems || stale_) return;
  stale_ = true;
  if (!filled_) return Refill();
  QMetaObject::invokeMethod(
      this, [this] { Refill(); }, Qt::QueuedConnection);
}

void ListAdapter::Refill() {
  filled_ = true;
  stale_ = false;
  Fill();
  ShowCurrent();
}

}  // namespace desktops::qt
