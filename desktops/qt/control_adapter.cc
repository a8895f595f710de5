// SPDX-License-Identifier: MIT
#include "desktops/qt/control_adapter.h"

#include <QApplication>
#include <QKeyEvent>

#include "desktops/qt/guard.h"
#include "desktops/qt/keys.h"
#include "desktops/qt/texts.h"

namespace desktops::qt {

using platform::ui::Change;

namespace {

bool HasFocusIn(const QWidget& widget) {
  const QWidget* focus = QApplication::focusWidget();
  return focus == &widget || widget.isAncestorOf(focus);
}

}  // namespace

QWidget* WidgetOwner::WidgetOf(const platform::ui::Window* window) {
  if (window == nullptr) return nullptr;
  auto* owner = dynamic_cast<WidgetOwner*>(window->Observer());
  return owner != nullptr ? owner->OwnedWidget() : nullptr;
}

ControlAdapter::ControlAdapter(platform::ui::Control& control, QWidget* widget)
    : control_(control), widget_(widget) {}

ControlAdapter::~ControlAdapter() { control_.SetObserver(nullptr); }

void ControlAdapter::Start() {
  control_.SetObserver(this);
  for (const Change change :
       {Change::kStyle, Change::kItems, Change::kLabel, Change::kText, Change::kCurrent}) {
    OnWindowChanged(control_, change);
  }
  RefreshShown();
}

void ControlAdapter::SetLabelWidget(QLabel* label) {
  label_ = label;
  label_->setBuddy(LabelBuddy());
  OnWindowChanged(control_, Change::kLabel);
  RefreshShown();
}

void ControlAdapter::TakeFocus() {
  if (!HasFocusIn(*widget_)) FirstFocus()->setFocus(Qt::OtherFocusReason);
}

void ControlAdapter::OnWindowChanged(platform::ui::Window&, Change change) {
  switch (change) {
    case Change::kLabel:
      if (label_ != nullptr) label_->setText(ToQt(control_.Label()));
      FirstFocus()->setAccessibleName(ToQt(control_.SpokenName()));
      RefreshLabel();
      break;
    case Change::kEnabled:
    case Change::kVisible:
      RefreshShown();
      break;
    case Change::kFocus:
      // Where the program moves the focus is to be seen, though no key was pressed.
      if (widget_->isVisible() && !HasFocusIn(*widget_))
        widget_->window()->setAttribute(Qt::WA_KeyboardFocusChange);
      TakeFocus();
      break;
    case Change::kDestroyed:
      if (const std::function<void()> gone = on_gone_) gone();
      break;
    default:
      Refresh(change);
  }
}

bool ControlAdapter::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
  const auto key = KeyOf(*static_cast<QKeyEvent*>(event));
  if (!key) return false;
  Guarded([&] { event->type() == QEvent::KeyPress ? control_.OnKeyDown(*key) : control_.OnKeyUp(*key); });
  return false;
}

void ControlAdapter::RefreshShown() {
  for (QWidget* widget : {widget_, static_cast<QWidget*>(label_.data())}) {
    if (widget == nullptr) continue;
    widget->setEnabled(control_.Enabled());
    widget->setVisible(control_.Visible());
  }
}

}  // namespace desktops::qt
