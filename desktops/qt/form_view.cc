// SPDX-License-Identifier: MIT
#include "desktops/qt/form_view.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QWhatsThis>
#include <algorithm>
#include <utility>

#include "desktops/qt/guard.h"
#include "desktops/qt/help_menu.h"
#include "desktops/qt/layout_builder.h"

namespace desktops::qt {

using platform::ui::Change;
using platform::ui::Control;
using platform::ui::HelpEvent;

std::unique_ptr<FormView> FormView::Laid(platform::ui::Form& form, QWidget* parent) {
  auto view = std::make_unique<FormView>(form, parent);
  BuildLayout(*view);
  view->Start();
  return view;
}

FormView::FormView(platform::ui::Form& form, QWidget* parent) : QWidget(parent), form_(form) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { OnFocusChanged(now); });
}

// The adapters go before their widgets, so nothing that happens on the way down reaches a control.
FormView::~FormView() { Detach(); }

void FormView::Detach() {
  if (std::exchange(detached_, true)) return;
  disconnect(qApp, nullptr, this, nullptr);
  if (form_.Observer() == this) form_.SetObserver(nullptr);
  adapters_.clear();
}

// An empty view stays behind for its owner to destroy. A handler of one of the widgets may be running.
void FormView::LetGo() {
  Detach();
  hide();
  setEnabled(false);  // no key and no click reaches the form any more
  for (QObject* child : children()) child->deleteLater();
}

void FormView::OnWindowChanged(platform::ui::Window&, Change change) {
  if (change == Change::kLabel && on_caption_) on_caption_();
  if (change == Change::kEnabled) setEnabled(form_.Enabled());
  if (change == Change::kDestroyed) LetGo();  // a form without controls
}

ControlAdapter& FormView::Add(Control& control) {
  std::unique_ptr<ControlAdapter>& adapter = adapters_[&control];
  if (adapter == nullptr) {
    adapter = MakeAdapter(control, this);
    adapter->SetOnGone([this] { LetGo(); });
  }
  return *adapter;
}

ControlAdapter* FormView::Find(const Control& control) const {
  const auto found = adapters_.find(&control);
  return found != adapters_.end() ? found->second.get() : nullptr;
}

void FormView::Start() {
  if (form_.Observer() == nullptr) form_.SetObserver(this);
  for (Control* control : form_.Controls()) {
    if (ControlAdapter* adapter = Find(*control)) adapter->Start();
  }
  SetWidths();
  SetTabOrder();
  FocusCurrent();
}

void FormView::SetWidths() {
  for (const std::vector<QWidget*>& buttons : equally_wide_) {
    int widest = 0;
    for (const QWidget* button : buttons) widest = std::max(widest, button->sizeHint().width());
    for (QWidget* button : buttons) button->setMinimumWidth(widest);
  }
}

void FormView::FocusCurrent() {
  if (form_.FocusedControl() == nullptr) return;
  if (ControlAdapter* adapter = Find(*form_.FocusedControl())) adapter->TakeFocus();
}

void FormView::SetTabOrder() {
  for (Control* control : form_.Controls()) {
    ControlAdapter* adapter = Find(*control);
    if (adapter == nullptr || !control->TakesFocus()) continue;
    if (last_in_tab_order_ != nullptr) setTabOrder(last_in_tab_order_, adapter->FirstFocus());
    last_in_tab_order_ = adapter->LastFocus();
  }
}

Control* FormView::ControlOf(const QWidget* widget) const {
  for (; widget != nullptr && widget != this; widget = widget->parentWidget()) {
    for (const auto& [control, adapter] : adapters_) {
      if (adapter->OwnedWidget() == widget || adapter->LabelWidget() == widget)
        return &adapter->ShownControl();
    }
  }
  return nullptr;
}

// A window in front takes the keyboard away for a while, which is no change of the form's focus.
void FormView::OnFocusChanged(QWidget* now) {
  if (now == nullptr || now->window() != window() || !isVisible()) return;
  Control* control = isAncestorOf(now) ? ControlOf(now) : nullptr;
  if (control == form_.FocusedControl()) return;
  Guarded([&] { form_.MoveFocus(control); });
}

void FormView::AskHelp(HelpEvent::Kind kind, Control* control) {
  Guarded([&] { form_.OnHelp({kind, control}); });
}

void FormView::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && ends_itself_) {
    Guarded([&] { form_.OnEnter(); });
  } else if (event->key() == Qt::Key_Escape && ends_itself_) {
    Guarded([&] { form_.OnEscape(); });
  } else if (event->key() == Qt::Key_F1 && event->modifiers().testFlag(Qt::ShiftModifier)) {
    QWhatsThis::enterWhatsThisMode();
  } else if (event->key() == Qt::Key_F1) {
    AskHelp(HelpEvent::Kind::kHelpKey, ControlOf(QApplication::focusWidget()));
  } else {
    event->ignore();
  }
}

// A click in "What's this?" mode.
bool FormView::event(QEvent* event) {
  if (event->type() == QEvent::QueryWhatsThis) {
    event->accept();
    return true;
  }
  if (event->type() == QEvent::WhatsThis) {
    const QPoint point = mapFromGlobal(static_cast<QHelpEvent*>(event)->globalPos());
    AskHelp(HelpEvent::Kind::kContextMenu, ControlOf(childAt(point)));
    return true;
  }
  return QWidget::event(event);
}

void FormView::contextMenuEvent(QContextMenuEvent* event) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  AddWhatsThis(*menu, form_, ControlOf(childAt(event->pos())));
  menu->popup(event->globalPos());
}

}  // namespace desktops::qt
