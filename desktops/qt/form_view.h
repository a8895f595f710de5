// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "desktops/qt/control_adapter.h"
#include "platform/ui/form.h"

namespace desktops::qt {

/// The inside of a form: its controls, placed. Keeps the form's focus in step with the keyboard focus and
/// passes on Enter, Escape and requests for help. When the form goes first, with the first of its controls, the view lets go
/// of it and stands there empty.
class FormView : public QWidget, public platform::ui::WindowObserver, public WidgetOwner {
 public:
  /// The form must be created and outlive the view. Its controls stand as its layout says.
  static std::unique_ptr<FormView> Laid(platform::ui::Form& form, QWidget* parent);
  /// An empty view, for controls that are placed one by one with Add and then started.
  FormView(platform::ui::Form& form, QWidget* parent);
  ~FormView() override;

  platform::ui::Form& ShownForm() const { return form_; }
  QWidget* OwnedWidget() const override { return const_cast<FormView*>(this); }
  platform::ui::Window& ShownWindow() const override { return form_; }
  void OnWindowChanged(platform::ui::Window& window, platform::ui::Change change) override;

  /// The control's adapter, made on the first call.
  ControlAdapter& Add(platform::ui::Control& control);
  ControlAdapter* Find(const platform::ui::Control& control) const;
  /// Makes buttons as wide as the widest of them, once they have their texts.
  void KeepEqualWidths(std::vector<QWidget*> buttons) { equally_wide_.push_back(std::move(buttons)); }
  /// Begins to observe the form and its controls; sets the tab order and the first focus.
  void Start();
  void FocusCurrent();
  /// The last widget that Tab reaches in the form, or null.
  QWidget* LastInTabOrder() const { return last_in_tab_order_; }

  /// The control whose widget `widget` is or is a part of, or null.
  platform::ui::Control* ControlOf(const QWidget* widget) const;

  /// What the window around the form does when the form's caption changes.
  void SetOnCaption(std::function<void()> handler) { on_caption_ = std::move(handler); }
  /// Enter and Escape are for the window around the form, where the form is only a part of one.
  void LeaveEndingToWindow() { ends_itself_ = false; }

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void OnFocusChanged(QWidget* now);
  void Detach();
  void LetGo();
  void AskHelp(platform::ui::HelpEvent::Kind kind, platform::ui::Control* control);
  void SetTabOrder();
  void SetWidths();

  platform::ui::Form& form_;
  std::map<const platform::ui::Control*, std::unique_ptr<ControlAdapter>> adapters_;
  std::vector<std::vector<QWidget*>> equally_wide_;
  std::function<void()> on_caption_;
  QWidget* last_in_tab_order_ = nullptr;
  bool ends_itself_ = true, detached_ = false;
};

}  // namespace desktops::qt
