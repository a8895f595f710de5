// SPDX-License-Identifier: MIT
#include "platform/ui/canvas.h"

#include <algorithm>

namespace platform::ui {

void Canvas::SetScroll(int position, int maximum, int page) {
  scroll_page_ = std::max(page, 1);
  scroll_maximum_ = std::max(maximum, 0);
  // The last page is as far as a scroll bar goes.
  scroll_position_ = std::clamp(position, 0, std::max(scroll_maximum_ - scroll_page_ + 1, 0));
  Notify(Change::kRepaint);
}

void Canvas::OnSize(int width, int height) {
  width_ = width;
  height_ = height;
}

}  // namespace platform::ui
