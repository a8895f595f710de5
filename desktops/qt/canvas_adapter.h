// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractScrollArea>

#include "desktops/qt/control_adapter.h"
#include "platform/ui/canvas.h"

namespace desktops::qt {

/// The area a canvas paints on, with its scroll bar.
class CanvasWidget : public QAbstractScrollArea {
 public:
  CanvasWidget(platform::ui::Canvas& model, QWidget* parent);
  void ShowScroll();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  void OnScrollAction(int action);
  void Tell(const QMouseEvent& event, void (platform::ui::Canvas::*on_mouse)(int, int));

  platform::ui::Canvas& model_;
};

class CanvasAdapter : public ControlAdapter {
 public:
  CanvasAdapter(platform::ui::Canvas& model, QWidget* parent);

 private:
  void Refresh(platform::ui::Change change) override;

  CanvasWidget* canvas_;
};

}  // namespace desktops::qt
