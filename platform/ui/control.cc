// SPDX-License-Identifier: MIT
#include "platform/ui/control.h"

#include <utility>

#include "platform/ui/form.h"

namespace platform::ui {

Control::Control(Form& form, int id, std::string label) : Window(&form, id, std::move(label)), form_(form) {
  form_.AddControl(*this);
}

Control::~Control() { form_.RemoveControl(*this); }

bool Control::HasFocus() const { return form_.FocusedControl() == this; }

void Control::SetFocus() { form_.MoveFocus(this); }

void Control::Run(const std::function<void()>& handler) const {
  const ModuleScope context(form_.OwnModule());
  if (handler) handler();
}

void Control::ChangedByPerson() {
  Run(on_change_);
  if (is_edit_) Run([this] { form_.OnPersonChange(*this); });
}

void Control::OnReachChanged() {
  if (!WithinReach() && HasFocus()) form_.MoveFocus(form_.NextInTabOrder());
}

void Button::SetDefault(bool is_default) {
  if (is_default) {
    Button* other = OwnerForm().DefaultButton();
    if (other != nullptr && other != this) other->SetDefault(false);
  }
  is_default_ = is_default;
  Notify(Change::kStyle);
}

void Button::SetPicture(const Bitmap& picture) {
  picture_ = picture;
  Notify(Change::kLabel);
}

void Button::OnClick() {
  if (WithinReach()) Run(on_click_);
}

std::string FieldButton::SpokenName() const {
  std::string field = field_.SpokenName();
  if (!field.empty() && field.back() == ':') field.pop_back();
  return purpose_ + " " + field;
}

void CheckBox::SetChecked(bool checked) {
  checked_ = checked;
  Notify(Change::kCurrent);
}

void CheckBox::OnClick() {
  if (!WithinReach()) return;
  SetChecked(!checked_);
  ChangedByPerson();
}

RadioGroup::RadioGroup(Form& form, int id, std::string label, std::vector<std::string> options)
    : Control(form, id, std::move(label)), options_(std::move(options)) {}

void RadioGroup::SetIndex(int index) {
  index_ = index >= 0 && index < static_cast<int>(options_.size()) ? index : -1;
  Notify(Change::kCurrent);
}

void RadioGroup::OnChoose(int index) {
  if (!WithinReach() || index < 0 || index >= static_cast<int>(options_.size())) return;
  SetIndex(index);
  ChangedByPerson();
}

}  // namespace platform::ui
