// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <string>
#include <vector>

#include "platform/ui/image.h"

namespace desktops::qt {

QImage ToImage(const platform::ui::Bitmap& picture);
platform::ui::Bitmap ToBitmap(const QImage& image);

/// Up to `limit` pictures of an icon file, or the one picture of any other image file; empty for what is
/// neither.
std::vector<platform::ui::Bitmap> IconsOfFile(const std::string& path, std::size_t limit);

}  // namespace desktops::qt
