// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <string>
#include <vector>

#include "platform/ui/image.h"

namespace desktops::qt {

QImage ToImage(const platform::ui::Bitmap& picture);
platform::ui::Bitmap ToBitmap(const QImage& image);

/// The one picture of an image file that is as small as an icon; empty for any other.
std::vector<platform::ui::Bitmap> PictureOfFile(const std::string& path);

}  // namespace desktops::qt
