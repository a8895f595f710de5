// SPDX-License-Identifier: MIT
// What a person does with the mouse on a canvas.
#include <QScrollBar>
#include <QTest>

#include "desktops/qt/canvas_adapter.h"
#include "desktops/qt/qt_person.h"

namespace desktops {

using platform::ui::Canvas;

namespace {

QAbstractSlider::SliderAction ActionOf(Canvas::Scroll what) {
  switch (what) {
    case Canvas::Scroll::kLineLeft:
      return QAbstractSlider::SliderSingleStepSub;
    case Canvas::Scroll::kLineRight:
      return QAbstractSlider::SliderSingleStepAdd;
    case Canvas::Scroll::kPageLeft:
      return QAbstractSlider::SliderPageStepSub;
    case Canvas::Scroll::kPageRight:
      return QAbstractSlider::SliderPageStepAdd;
    default:
      return QAbstractSlider::SliderMove;
  }
}

}  // namespace

void QtPerson::ClickAt(const std::string& label, int x, int y) { DragOver(label, x, y, x, y); }

void QtPerson::DoubleClickAt(const std::string& label, int x, int y) {
  ClickAt(label, x, y);
  QTest::mouseDClick(ReachableAs<QAbstractScrollArea>(label).viewport(), Qt::LeftButton, {}, QPoint(x, y));
  Settle();
}

void QtPerson::DragOver(const std::string& label, int x, int y, int to_x, int to_y) {
  auto& canvas = ReachableAs<QAbstractScrollArea>(label);
  canvas.setFocus(Qt::MouseFocusReason);
  QTest::mousePress(canvas.viewport(), Qt::LeftButton, {}, QPoint(x, y));
  QTest::mouseRelease(canvas.viewport(), Qt::LeftButton, {}, QPoint(to_x, to_y));
  Settle();
}

void QtPerson::ScrollCanvas(const std::string& label, Canvas::Scroll what, int thumb) {
  QScrollBar* bar = ReachableAs<QAbstractScrollArea>(label).horizontalScrollBar();
  if (what == Canvas::Scroll::kThumb) {
    bar->setSliderPosition(thumb);  // which the bar tells by itself
  } else {
    bar->triggerAction(ActionOf(what));
  }
  Settle();
}

}  // namespace desktops
