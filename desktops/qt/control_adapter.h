// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>

#include "platform/ui/control.h"

namespace desktops::qt {

/// Who shows a window. Observers of windows on this desktop implement it, so that a widget can be found from
/// the window and the window from a widget.
class WidgetOwner {
 public:
  virtual ~WidgetOwner() = default;
  virtual QWidget* OwnedWidget() const = 0;
  virtual platform::ui::Window& ShownWindow() const = 0;

  /// The widget that shows `window` now, or null.
  static QWidget* WidgetOf(const platform::ui::Window* window);
};

/// Keeps one control and its widget in step: the control's changes arrive at Refresh, a person's actions on
/// the widget go to the control's On... functions. Refreshing never reports anything back to the control.
class ControlAdapter : public QObject, public platform::ui::WindowObserver, public WidgetOwner {
 public:
  /// `widget` belongs to its Qt parent and outlives the adapter. A newly made adapter shows the control's
  /// state after Start.
  ControlAdapter(platform::ui::Control& control, QWidget* widget);
  ~ControlAdapter() override;

  platform::ui::Control& ShownControl() const { return control_; }
  platform::ui::Window& ShownWindow() const override { return control_; }
  QWidget* OwnedWidget() const override { return widget_; }

  /// Begins to observe, and brings the widget to the control's state.
  void Start();
  /// What is done when the control goes before its widget. It may delete the adapter.
  void SetOnGone(std::function<void()> handler) { on_gone_ = std::move(handler); }
  /// The label that goes with the control: shown, enabled and named as the control is.
  void SetLabelWidget(QLabel* label);
  QLabel* LabelWidget() const { return label_; }

  /// Where the keyboard focus goes, and the last of the adapter's widgets in tab order.
  virtual QWidget* FirstFocus() const { return widget_; }
  virtual QWidget* LastFocus() const { return widget_; }
  /// What the label's access key leads to.
  virtual QWidget* LabelBuddy() const { return FirstFocus(); }
  /// Moves the keyboard focus onto the control.
  virtual void TakeFocus();

  void OnWindowChanged(platform::ui::Window& window, platform::ui::Change change) final;

 protected:
  /// Brings the widget up to date after that change. Label, state and focus are the base's affair.
  virtual void Refresh(platform::ui::Change change) = 0;
  /// Puts the label's text where the widget shows it; most widgets have it beside them.
  virtual void RefreshLabel() {}
  /// Tells the control of keys pressed and released on its widget; for widgets that do not do so themselves.
  void WatchKeys(QWidget* widget) { widget->installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void RefreshShown();

  platform::ui::Control& control_;
  QWidget* widget_;
  QPointer<QLabel> label_;
  std::function<void()> on_gone_;
};

/// Makes the widget, a child of `parent`, and the adapter for the control's kind.
std::unique_ptr<ControlAdapter> MakeAdapter(platform::ui::Control& control, QWidget* parent);

}  // namespace desktops::qt
