// SPDX-License-Identifier: MIT
#include "desktops/qt/help_popup.h"

#include <QKeyEvent>
#include <QScreen>
#include <QToolTip>
#include <algorithm>

namespace desktops::qt {
namespace {

constexpr int kWidthInLetters = 60;
constexpr int kMargin = 8;

}  // namespace

HelpPopup::HelpPopup(const QString& text, QWidget* owner) : QLabel(text, owner, Qt::Popup) {
  setAttribute(Qt::WA_DeleteOnClose);
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setMargin(kMargin);
  setFrameShape(QFrame::Box);
  setPalette(QToolTip::palette());
  setAutoFillBackground(true);
  setForegroundRole(QPalette::ToolTipText);
  setBackgroundRole(QPalette::ToolTipBase);
  setAccessibleName(text);
  ensurePolished();
  const int width = fontMetrics().averageCharWidth() * kWidthInLetters;
  const QRect needed = fontMetrics().boundingRect(QRect(0, 0, width, 0), Qt::TextWordWrap, text);
  const int around = 2 * (kMargin + frameWidth());
  setFixedSize(needed.width() + around, heightForWidth(needed.width() + around));
}

void HelpPopup::ShowBeside(const QRect& area) {
  const QRect room = screen()->availableGeometry();
  QPoint place = area.bottomLeft() + QPoint(0, 2);
  if (place.y() + height() > room.bottom()) place.setY(std::max(room.top(), area.top() - height() - 2));
  place.setX(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - width())));
  move(place);
  show();
}

void HelpPopup::keyPressEvent(QKeyEvent* event) {
  event->accept();
  close();
}

}  // namespace desktops::qt
