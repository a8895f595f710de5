// SPDX-License-Identifier: MIT
#include "desktops/qt/spin_adapter.h"

#include <QKeyEvent>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "desktops/qt/guard.h"

namespace desktops::qt {

using platform::ui::Change;

namespace {
constexpr int kButtonWidth = 18;
}

SpinAdapter::SpinAdapter(platform::ui::Spin& model, QWidget* parent)
    : ControlAdapter(model, new QWidget(parent)), model_(model) {
  auto* column = new QVBoxLayout(OwnedWidget());
  column->setContentsMargins({});
  column->setSpacing(0);
  column->addWidget(AddButton(Qt::UpArrow, +1));
  column->addWidget(AddButton(Qt::DownArrow, -1));
  OwnedWidget()->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QToolButton* SpinAdapter::AddButton(Qt::ArrowType arrow, int direction) {
  auto* button = new QToolButton(OwnedWidget());
  button->setArrowType(arrow);
  button->setAutoRepeat(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setFixedWidth(kButtonWidth);
  button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
  button->setAccessibleName(direction > 0 ? tr("More") : tr("Less"));
  connect(button, &QToolButton::clicked, this, [this, direction] { Step(direction); });
  return button;
}

// The buddy's widget is known once both stand in the form.
void SpinAdapter::Refresh(Change) {
  QWidget* field = WidgetOf(&model_.Buddy());
  if (field == nullptr || field == watched_) return;
  watched_ = field;
  field->installEventFilter(this);
  OwnedWidget()->setFixedHeight(field->sizeHint().height());
}

bool SpinAdapter::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down) return false;
    Step(key == Qt::Key_Up ? +1 : -1);
    return true;
  }
  if (event->type() == QEvent::Wheel && watched_->hasFocus()) {
    const int turned = static_cast<QWheelEvent*>(event)->angleDelta().y();
    if (turned != 0) Step(turned > 0 ? +1 : -1);
    return true;
  }
  return false;
}

void SpinAdapter::Step(int direction) {
  if (model_.Enabled() && model_.Buddy().Enabled()) Guarded([&] { model_.OnStep(direction); });
}

}  // namespace desktops::qt
