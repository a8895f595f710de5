// SPDX-License-Identifier: MIT
#include "desktops/qt/button_adapters.h"

#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktops/qt/guard.h"
#include "desktops/qt/icons.h"
#include "desktops/qt/texts.h"

namespace desktops::qt {

using platform::ui::Change;
using platform::ui::RadioGroup;

namespace {

// "..." and other short captions make small buttons, which stand beside a field.
constexpr int kShortCaption = 3;

// The stretch at the end keeps the options together where there is more room.
QWidget* MakeRadioBox(const RadioGroup& model, QWidget* parent) {
  const RadioGroup::Arrangement arrangement = model.GetArrangement();
  const bool framed = !model.Label().empty() && arrangement != RadioGroup::Arrangement::kLabelLeft;
  QWidget* box = framed ? new QGroupBox(ToQt(model.Label()), parent) : new QWidget(parent);
  const bool upright = arrangement == RadioGroup::Arrangement::kUpright;
  auto* line = new QBoxLayout(upright ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, box);
  if (!framed) line->setContentsMargins({});
  // So that a label's access key leads to the options; led to one of them, it would choose it.
  if (!framed) box->setFocusPolicy(Qt::ClickFocus);
  for (const std::string& option : model.Options()) line->addWidget(new QRadioButton(ToQt(option), box));
  line->addStretch();
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
  if (model_.Picture().Width() > 0) return ShowPicture();
  button_->setText(ToQt(model_.Label()));
  const bool is_short = button_->text().size() <= kShortCaption && button_->text() != QLatin1String("OK");
  const int width = button_->fontMetrics().horizontalAdvance(button_->text()) + 20;
  button_->setMaximumWidth(is_short ? width : QWIDGETSIZE_MAX);
}

void ButtonAdapter::ShowPicture() {
  const QPixmap picture = QPixmap::fromImage(ToImage(model_.Picture()));
  button_->setText({});
  button_->setIcon(picture);
  button_->setIconSize(picture.size());
  const char key = platform::ui::AccessKey(model_.Label());
  if (key != 0) button_->setShortcut(QKeySequence(QStringLiteral("Alt+") + QLatin1Char(key)));
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

QWidget* RadioGroupAdapter::LabelBuddy() const { return OwnedWidget(); }

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
  if (LabelWidget() != nullptr) OwnedWidget()->setFocusProxy(FirstFocus());
}

}  // namespace desktops::qt
