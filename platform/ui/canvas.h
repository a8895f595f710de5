// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/control.h"
#include "platform/ui/image.h"
#include "platform/ui/rect.h"

namespace platform::ui {

enum class SystemColor { kWindow, kWindowText, kHighlight, kHighlightText };

/// What a canvas paints on; given by the desktop.
class Painter {
 public:
  virtual ~Painter() = default;
  virtual void Fill(const Rect& area, SystemColor color) = 0;
  virtual void FocusRectangle(const Rect& area) = 0;
  virtual void Draw(const Bitmap& picture, int x, int y) = 0;
};

/// A control that paints itself, with an optional horizontal scroll bar. Derived classes override the events;
/// arrow keys and the focus arrive as at every control.
class Canvas : public Control {
 public:
  Canvas(Form& form, int id, std::string label) : Control(form, id, std::move(label)) {}

  int Width() const { return width_; }
  int Height() const { return height_; }
  int ScrollPosition() const { return scroll_position_; }
  int ScrollMaximum() const { return scroll_maximum_; }
  int ScrollPage() const { return scroll_page_; }
  void SetScroll(int position, int maximum, int page);
  void Repaint() { Notify(Change::kRepaint); }

  virtual void OnPaint(Painter&) {}
  /// The left button; a double click comes after the press and release of its first click.
  virtual void OnMouseDown(int /*x*/, int /*y*/) {}
  virtual void OnMouseUp(int /*x*/, int /*y*/) {}
  virtual void OnDoubleClick(int /*x*/, int /*y*/) {}
  enum class Scroll { kLineLeft, kLineRight, kPageLeft, kPageRight, kThumb };
  virtual void OnScroll(Scroll /*what*/, int /*thumb*/) {}
  /// The desktop gave the canvas its size in pixels.
  virtual void OnSize(int width, int height);

 private:
  int width_ = 0, height_ = 0;
  int scroll_position_ = 0, scroll_maximum_ = 0, scroll_page_ = 1;
};

}  // namespace platform::ui
