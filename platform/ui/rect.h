// SPDX-License-Identifier: MIT
#pragma once

namespace platform::ui {

/// A place in pixels, from the top left corner of what it stands in.
struct Rect {
  int x, y, width, height;
};

}  // namespace platform::ui
