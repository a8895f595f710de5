// SPDX-License-Identifier: MIT
#include "desktops/qt/icons.h"

#include "desktops/qt/texts.h"

namespace desktops::qt {

using platform::ui::Bitmap;

QImage ToImage(const Bitmap& picture) {
  if (picture.Width() == 0 || picture.Height() == 0) return {};
  const auto* pixels = reinterpret_cast<const uchar*>(picture.Data());
  return QImage(pixels, picture.Width(), picture.Height(), QImage::Format_ARGB32).copy();
}

Bitmap ToBitmap(const QImage& image) {
  const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
  Bitmap picture(pixels.width(), pixels.height());
  for (int y = 0; y < pixels.height(); ++y) {
    for (int x = 0; x < pixels.width(); ++x) picture.SetPixel(x, y, pixels.pixel(x, y));
  }
  return picture;
}

std::vector<Bitmap> PictureOfFile(const std::string& path) {
  const QImage image(ToQt(path));
  // A photograph is no icon; a file dialog that browses over one would show a piece of it.
  constexpr int kLargestIcon = 256;
  if (image.isNull() || image.width() > kLargestIcon || image.height() > kLargestIcon) return {};
  return {ToBitmap(image)};
}

}  // namespace desktops::qt
