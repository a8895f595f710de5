// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

#include "desktops/qt/control_adapter.h"
#include "platform/ui/spin.h"

namespace desktops::qt {

/// Up and down buttons, one above the other, that stand right of the buddy's field. The field's arrow keys
/// and the wheel over it step too.
class SpinAdapter : public ControlAdapter {
 public:
  SpinAdapter(platform::ui::Spin& model, QWidget* parent);

 private:
  void Refresh(platform::ui::Change change) override;
  bool eventFilter(QObject* buddy, QEvent* event) override;
  QToolButton* AddButton(Qt::ArrowType arrow, int direction);
  void Step(int direction);

  platform::ui::Spin& model_;
  QPointer<QWidget> watched_;
};

}  // namespace desktops::qt
