// SPDX-License-Identifier: MIT
#include "platform/ui/form.h"

#include <algorithm>

namespace platform::ui {

Form::~Form() = default;

void Form::Create() {
  if (created_) return;
  created_ = true;
  OnInitDialog();
  if (focused_ == nullptr) MoveFocus(NextInTabOrder());
}

void Form::Destroy() {
  created_ = false;
  focused_ = nullptr;
}

void Form::OnInitDialog() { UpdateData(false); }

bool Form::UpdateData(bool save) {
  const ModuleScope context(module_);
  DataExchange exchange(*this, save);
  Exchange(exchange);
  return !exchange.Failed();
}

bool Form::CanFocus(const Control& control) const { return control.TakesFocus() && control.WithinReach(); }

void Form::MoveFocus(Control* control) {
  if (control == focused_ || (control != nullptr && !CanFocus(*control))) return;
  Control* before = focused_;
  focused_ = control;
  if (before != nullptr) before->OnKillFocus();
  // What hears of the loss may have moved the focus elsewhere.
  if (control == nullptr || focused_ != control) return;
  control->OnSetFocus();
  control->Notify(Change::kFocus);
}

Control* Form::NextInTabOrder() const {
  std::vector<Control*> order = controls_;
  const auto at = std::ranges::find(order, focused_);
  if (at != order.end()) std::ranges::rotate(order, at + 1);
  const auto next = std::ranges::find_if(order, [this](const Control* c) { return CanFocus(*c); });
  return next != order.end() ? *next : nullptr;
}

Button* Form::DefaultButton() const {
  for (Control* control : controls_) {
    auto* button = dynamic_cast<Button*>(control);
    if (button != nullptr && button->IsDefault()) return button;
  }
  return nullptr;
}

void Form::OnEnter() {
  auto* button = dynamic_cast<Button*>(focused_);
  if (button == nullptr) button = DefaultButton();
  if (button != nullptr) button->OnClick();
}

void Form::AddControl(Control& control) { controls_.push_back(&control); }

void Form::RemoveControl(Control& control) {
  std::erase(controls_, &control);
  if (focused_ == &control) focused_ = nullptr;
}

}  // namespace platform::ui
