// SPDX-License-Identifier: MIT
#include "alerting/ui/icon_strip.h"

#include <algorithm>
#include <utility>

#include "alerting/frame/strings.h"
#include "platform/ui/desktop.h"

namespace alerting {
namespace {

constexpr int kMostIcons = 1000;
constexpr int kFocusInset = 4;

}  // namespace

CIconStrip::CIconStrip(ui::Form& form, int id, std::uint32_t selected)
    : Canvas(form, id, Text(kIdsIconStrip)),
      selected_(static_cast<int>(std::min<std::uint32_t>(selected, kMostIcons))) {}

int CIconStrip::CellWidth() { return std::max(ui::Desktop::Current().IconSpacing(), 1); }

int CIconStrip::VisibleCount() const { return std::max(Width() / CellWidth(), 1); }

void CIconStrip::Load(const std::string& path) {
  std::vector<ui::Bitmap> icons = ui::Desktop::Current().ExtractIcons(path, kMostIcons);
  if (icons.empty()) return Clear();
  icons_ = std::move(icons);
  // The file may have fewer icons than when its icon was chosen.
  const bool keep = std::exchange(initial_selection_pending_, false) && selected_ < Count();
  if (!keep) selected_ = 0;
  ScrollTo(selected_ + 1 - VisibleCount());
}

void CIconStrip::Clear() {
  icons_.clear();
  selected_ = 0;
  ScrollTo(0);
}

void CIconStrip::ScrollTo(int first) {
  first_ = std::clamp(first, 0, std::max(Count() - VisibleCount(), 0));
  SetScroll(first_, std::max(Count() - 1, 0), VisibleCount());
  Repaint();
}

void CIconStrip::Select(int icon) {
  if (icon < 0 || icon >= Count()) return;
  selected_ = icon;
  if (IsInView(icon)) return Repaint();
  ScrollTo(icon < first_ ? icon : icon + 1 - VisibleCount());
}

void CIconStrip::OnKeyDown(ui::Key key) {
  if (key == ui::Key::kLeft) Select(selected_ - 1);
  if (key == ui::Key::kRight) Select(selected_ + 1);
}

void CIconStrip::OnScroll(Scroll what, int thumb) {
  switch (what) {
    case Scroll::kLineLeft:
      return ScrollTo(first_ - 1);
    case Scroll::kLineRight:
      return ScrollTo(first_ + 1);
    case Scroll::kPageLeft:
      return ScrollTo(first_ - VisibleCount());
    case Scroll::kPageRight:
      return ScrollTo(first_ + VisibleCount());
    case Scroll::kThumb:
      return ScrollTo(thumb);
  }
}

void CIconStrip::OnMouseUp(int x, int) {
  const int cell = x / CellWidth();
  if (x >= 0 && cell < std::min(VisibleCount(), Count())) Select(first_ + cell);
}

// The strip gets its size after its first file: only then is it known which icons are in view.
void CIconStrip::OnSize(int width, int height) {
  const bool was_in_view = IsInView(selected_);
  Canvas::OnSize(width, height);
  ScrollTo(was_in_view ? selected_ + 1 - VisibleCount() : first_);
}

void CIconStrip::OnPaint(ui::Painter& painter) {
  const int cell = CellWidth();
  if (Count() > 0 && IsInView(selected_)) {
    const int left = (selected_ - first_) * cell;
    painter.Fill({left, 0, cell, Height()}, ui::SystemColor::kHighlight);
    if (HasFocus())
      painter.FocusRectangle(
          {left + kFocusInset, kFocusInset, cell - 2 * kFocusInset, Height() - 2 * kFocusInset});
  }
  for (int i = first_; i < std::min(first_ + VisibleCount(), Count()); ++i) {
    const ui::Bitmap& icon = icons_[static_cast<std::size_t>(i)];
    painter.Draw(icon, (i - first_) * cell + (cell - icon.Width()) / 2, (Height() - icon.Height()) / 2);
  }
}

}  // namespace alerting
