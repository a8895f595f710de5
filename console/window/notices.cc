// SPDX-License-Identifier: MIT
#include "console/window/notices.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace alertconsole {

Notices::Notices(QWidget* parent) : QWidget(parent), column_(new QVBoxLayout(this)) {
  column_->setContentsMargins({});
}

Notices::Notice& Notices::Make(Kind kind) {
  auto* frame = new QFrame(this);
  frame->setFrameShape(QFrame::StyledPanel);
  auto* icon = new QLabel(frame);
  const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size));
  auto* text = new QLabel(frame);
  text->setWordWrap(true);
  text->setTextFormat(Qt::PlainText);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  auto* button = new QPushButton(frame);
  auto* line = new QHBoxLayout(frame);
  line->addWidget(icon);
  line->addWidget(text, 1);
  line->addWidget(button);
  column_->addWidget(frame);
  Notice& notice = notices_[kind] = {frame, text, button, {}};
  connect(button, &QPushButton::clicked, this, [&notice] {
    if (notice.act) notice.act();
  });
  return notice;
}

void Notices::Set(Kind kind, const QString& text, const QString& button, std::function<void()> act) {
  const auto found = notices_.find(kind);
  if (found == notices_.end() && text.isEmpty()) return;
  Notice& notice = found == notices_.end() ? Make(kind) : found->second;
  notice.text->setText(text);
  notice.text->setAccessibleName(text);
  notice.button->setText(button);
  notice.button->setVisible(!button.isEmpty());
  notice.act = std::move(act);
  notice.frame->setVisible(!text.isEmpty());
}

QString Notices::Text(Kind kind) const {
  const auto found = notices_.find(kind);
  return found == notices_.end() ? QString() : found->second.text->text();
}

}  // namespace alertconsole
