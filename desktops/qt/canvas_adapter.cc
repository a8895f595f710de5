// SPDX-License-Identifier: MIT
#include "desktops/qt/canvas_adapter.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionFocusRect>
#include <algorithm>

#include "desktops/qt/guard.h"
#include "desktops/qt/icons.h"
#include "desktops/qt/keys.h"

namespace desktops::qt {

using platform::ui::Canvas;
using platform::ui::Change;
using platform::ui::SystemColor;

namespace {

class QtPainter : public platform::ui::Painter {
 public:
  explicit QtPainter(QWidget& target, const QWidget& styled) : painter_(&target), styled_(styled) {}

  void Fill(const platform::ui::Rect& area, SystemColor color) override {
    painter_.fillRect(area.x, area.y, area.width, area.height, styled_.palette().color(RoleOf(color)));
  }
  void FocusRectangle(const platform::ui::Rect& area) override {
    QStyleOptionFocusRect option;
    option.initFrom(&styled_);
    option.rect = QRect(area.x, area.y, area.width, area.height);
    styled_.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter_, &styled_);
  }
  void Draw(const platform::ui::Bitmap& picture, int x, int y) override {
    painter_.drawImage(x, y, ToImage(picture));
  }

 private:
  static QPalette::ColorRole RoleOf(SystemColor color) {
    switch (color) {
      case SystemColor::kWindow:
        return QPalette::Base;
      case SystemColor::kWindowText:
        return QPalette::Text;
      case SystemColor::kHighlight:
        return QPalette::Highlight;
      case SystemColor::kHighlightText:
        return QPalette::HighlightedText;
    }
    return QPalette::Base;
  }

  QPainter painter_;
  const QWidget& styled_;
};

// To the toolkit a canvas is an area like any other, which a screen reader would pass over.
QAccessibleInterface* SpokenCanvas(const QString&, QObject* object) {
  auto* canvas = dynamic_cast<CanvasWidget*>(object);
  return canvas != nullptr ? new QAccessibleWidget(canvas, QAccessible::Canvas) : nullptr;
}

}  // namespace

CanvasWidget::CanvasWidget(Canvas& model, QWidget* parent) : QAbstractScrollArea(parent), model_(model) {
  static const bool is_spoken = (QAccessible::installFactory(SpokenCanvas), true);
  static_cast<void>(is_spoken);
  setFocusPolicy(Qt::StrongFocus);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  connect(horizontalScrollBar(), &QScrollBar::actionTriggered, this,
          [this](int action) { OnScrollAction(action); });
}

// The model says where the scroll bar stands; the bar's own step is taken back until it has.
void CanvasWidget::ShowScroll() {
  QScrollBar* bar = horizontalScrollBar();
  const QSignalBlocker quiet(bar);
  const int page = std::max(1, model_.ScrollPage());
  bar->setRange(0, std::max(0, model_.ScrollMaximum() - page + 1));
  bar->setPageStep(page);
  bar->setValue(model_.ScrollPosition());
  viewport()->update();
}

void CanvasWidget::OnScrollAction(int action) {
  using Scroll = Canvas::Scroll;
  const int thumb = horizontalScrollBar()->sliderPosition();
  Guarded([&] {
    switch (action) {
      case QAbstractSlider::SliderSingleStepAdd:
        return model_.OnScroll(Scroll::kLineRight, thumb);
      case QAbstractSlider::SliderSingleStepSub:
        return model_.OnScroll(Scroll::kLineLeft, thumb);
      case QAbstractSlider::SliderPageStepAdd:
        return model_.OnScroll(Scroll::kPageRight, thumb);
      case QAbstractSlider::SliderPageStepSub:
        return model_.OnScroll(Scroll::kPageLeft, thumb);
      default:
        return model_.OnScroll(Scroll::kThumb, thumb);
    }
  });
  horizontalScrollBar()->setSliderPosition(model_.ScrollPosition());
}

void CanvasWidget::paintEvent(QPaintEvent*) {
  Guarded([&] {
    QtPainter painter(*viewport(), *this);
    painter.Fill({0, 0, viewport()->width(), viewport()->height()}, SystemColor::kWindow);
    model_.OnPaint(painter);
  });
}

void CanvasWidget::resizeEvent(QResizeEvent*) {
  Guarded([&] { model_.OnSize(viewport()->width(), viewport()->height()); });
}

void CanvasWidget::Tell(const QMouseEvent& event, void (Canvas::*on_mouse)(int, int)) {
  if (event.button() != Qt::LeftButton) return;
  const QPoint point = event.position().toPoint();
  Guarded([&] { (model_.*on_mouse)(point.x(), point.y()); });
}

void CanvasWidget::mousePressEvent(QMouseEvent* event) { Tell(*event, &Canvas::OnMouseDown); }

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) { Tell(*event, &Canvas::OnMouseUp); }

void CanvasWidget::mouseDoubleClickEvent(QMouseEvent* event) { Tell(*event, &Canvas::OnDoubleClick); }

void CanvasWidget::keyPressEvent(QKeyEvent* event) {
  if (const auto key = KeyOf(*event)) Guarded([&] { model_.OnKeyDown(*key); });
  event->setAccepted(MovesCaret(event->key()));
}

void CanvasWidget::keyReleaseEvent(QKeyEvent* event) {
  if (const auto key = KeyOf(*event)) Guarded([&] { model_.OnKeyUp(*key); });
}

CanvasAdapter::CanvasAdapter(Canvas& model, QWidget* parent)
    : ControlAdapter(model, new CanvasWidget(model, parent)),
      canvas_(static_cast<CanvasWidget*>(OwnedWidget())) {}

void CanvasAdapter::Refresh(Change change) {
  if (change == Change::kRepaint || change == Change::kItems) canvas_->ShowScroll();
}

}  // namespace desktops::qt
