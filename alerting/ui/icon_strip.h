// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/ui/canvas.h"

namespace alerting {

namespace ui = platform::ui;

/// The icons of a file side by side, one of them selected, with a scroll bar below.
class CIconStrip : public ui::Canvas {
 public:
  /// `selected` is the icon that the first file shown begins with.
  CIconStrip(ui::Form& form, int id, std::uint32_t selected);

  /// Shows the icons of a file, the first 1,000 of them.
  void Load(const std::string& path);
  void Clear();

  int Selected() const { return selected_; }
  int Count() const { return static_cast<int>(icons_.size()); }
  int FirstVisible() const { return first_; }
  /// How many icons the strip has room for, 1 at least.
  int VisibleCount() const;

  void OnPaint(ui::Painter& painter) override;
  void OnMouseUp(int x, int y) override;
  void OnScroll(Scroll what, int thumb) override;
  void OnKeyDown(ui::Key key) override;
  void OnSetFocus() override { Repaint(); }
  void OnKillFocus() override { Repaint(); }
  void OnSize(int width, int height) override;

 private:
  static int CellWidth();
  bool IsInView(int icon) const { return icon >= first_ && icon < first_ + VisibleCount(); }
  void SelectInitial();
  void Select(int icon);
  void ScrollTo(int first);

  std::vector<ui::Bitmap> icons_;
  int selected_;
  int first_ = 0;
  bool initial_selection_pending_ = true;
};

}  // namespace alerting
