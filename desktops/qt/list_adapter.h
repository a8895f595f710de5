// SPDX-License-Identifier: MIT
#pragma once

#include "desktops/qt/control_adapter.h"

class QTreeWidget;

namespace desktops::qt {

/// Makes the list so wide that it shows its columns without being scrolled.
void ShowAllColumns(QTreeWidget& list);

/// What the adapters of lists share. Programs add items one by one, each with a report of its own: the widget
/// is filled at once when it is made, and later once for all that was added before it is painted again.
class ListAdapter : public ControlAdapter {
 public:
  using ControlAdapter::ControlAdapter;

 protected:
  /// Puts all of the model's items into the widget.
  virtual void Fill() = 0;
  /// Shows what is chosen. Not called while the widget's items are old ones.
  virtual void ShowCurrent() = 0;
  void Refresh(platform::ui::Change change) override;

 private:
  void Refill();

  bool filled_ = false, stale_ = false;
};

}  // namespace desktops::qt
