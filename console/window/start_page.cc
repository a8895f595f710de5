// SPDX-License-Identifier: MIT
#include "console/window/start_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace alertconsole {

StartPage::StartPage(QWidget* parent)
    : QWidget(parent), headline_(new QLabel(this)), text_(new QLabel(this)), button_(new QPushButton(this)) {
  QFont large = headline_->font();
  large.setPointSizeF(large.pointSizeF() * 1.6);
  headline_->setFont(large);
  text_->setWordWrap(true);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  button_->setDefault(true);
  auto* line = new QHBoxLayout;
  line->addWidget(button_);
  line->addStretch();
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(48, 48, 48, 48);
  column->setSpacing(18);
  column->addWidget(headline_);
  column->addWidget(text_);
  column->addLayout(line);
  column->addStretch();
  connect(button_, &QPushButton::clicked, this, [this] { act_(); });
}

void StartPage::Say(const QString& headline, const QString& text, const QString& button,
                    std::function<void()> act) {
  headline_->setText(headline);
  text_->setText(text);
  button_->setText(button);
  act_ = std::move(act);
  button_->setFocus();
}

}  // namespace alertconsole
