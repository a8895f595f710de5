// SPDX-License-Identifier: MIT
#include "desktops/qt/button_adapters.h"

#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktops/qt/guard.h"
#include "desktops/qt/texts.h"

namespace desktops::qt {

using platform::ui::Change;

namespace {

// "..." and other short captions make small buttons, which stand beside a field.
constexpr int kShortCaption = 3;

QWidget* MakeRadioBox(const platform::ui::RadioGroup& model, QWidget* parent) {
  QWidget* box = model.Label().empty() ? new QWidget(parent) : new QGroupBox(ToQt(model.Label()), parent);
  auto* column = new QVBoxLayout(box);
  if (model.Label().empty()) column->setContentsMargins({});
  for (const std::string& option : model.Options()) column->addWidget(new QRadioButton(ToQt(option), box));
  return box;
}

}  // namespace

StaticTextAdapter::StaticTextAdapter(platform::ui::StaticText& model, QWidget* parent)
    : ControlAdapter(model, new QLabel(parent)), text_(static_cast<QLabel*>(OwnedWidget())) {
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
}

void StaticTextAdapter::RefreshLabel() {
  text_->setText(ToQt(platform::ui::PlainLabel(ShownControl().Label())));
}

ButtonAdapter::ButtonAdapter(platform::ui::Button& model, QWidget* parent)
    : ControlAdapter(model, new QPushButton(parent)),
      model_(model),
      button_(static_cast<QPushButton*>(OwnedWidget())) {
  // The form decides what Enter presses.
  button_->setAutoDefault(false);
  WatchKeys(button_);
  connect(button_, &QPushButton::clicked, this, [this] { Guarded([this] { model_.OnClick(); }); });
}

void ButtonAdapter::Refresh(Change change) {
  if (change == Change::kStyle) button_->setDefault(model_.IsDefault());
}

void ButtonAdapter::RefreshLabel() {
  button_->setText(ToQt(model_.Label()));
  const bool is_short = button_->text().size() <= kShortCaption && button_->text() != QLatin1String("OK");
  const int width = button_->fontMetrics().horizontalAdvance(button_->text()) + 20;
  button_->setMaximumWidth(is_short ? width : QWIDGETSIZE_MAX);
}

CheckBoxAdapter::CheckBoxAdapter(platform::ui::CheckBox& model, QWidget* parent)
    : ControlAdapter(model, new QCheckBox(parent)),
      model_(model),
      box_(static_cast<QCheckBox*>(OwnedWidget())) {
  WatchKeys(box_);
  connect(box_, &QCheckBox::clicked, this, [this] { Guarded([this] { model_.OnClick(); }); });
}

void CheckBoxAdapter::Refresh(Change change) {
  if (change == Change::kCurrent) box_->setChecked(model_.Checked());
}

void CheckBoxAdapter::RefreshLabel() { box_->setText(ToQt(model_.Label())); }

RadioGroupAdapter::RadioGroupAdapter(platform::ui::RadioGroup& model, QWidget* parent)
    : ControlAdapter(model, MakeRadioBox(model, parent)), model_(model), buttons_(new QButtonGroup(this)) {
  int id = 0;
  for (auto* button : OwnedWidget()->findChildren<QRadioButton*>()) {
    buttons_->addButton(button, id++);
    WatchKeys(button);
  }
  connect(buttons_, &QButtonGroup::idClicked, this,
          [this](int index) { Guarded([this, index] { model_.OnChoose(index); }); });
}

QWidget* RadioGroupAdapter::FirstFocus() const {
  QAbstractButton* chosen = buttons_->button(model_.Index() < 0 ? 0 : model_.Index());
  return chosen != nullptr ? chosen : OwnedWidget();
}

QWidget* RadioGroupAdapter::LastFocus() const {
  return buttons_->buttons().isEmpty() ? OwnedWidget() : buttons_->buttons().last();
}

void RadioGroupAdapter::Refresh(Change change) {
  if (change == Change::kCurrent) ShowChoice();
}

void RadioGroupAdapter::RefreshLabel() {
  if (auto* box = qobject_cast<QGroupBox*>(OwnedWidget())) box->setTitle(ToQt(model_.Label()));
}

void RadioGroupAdapter::ShowChoice() {
  buttons_->setExclusive(false);  // else no option could be left without a choice
  for (QAbstractButton* button : buttons_->buttons())
    button->setChecked(buttons_->id(button) == model_.Index());
  buttons_->setExclusive(true);
}

}  // namespace desktops::qt
