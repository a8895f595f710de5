// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace platform::ui {

/// A picture as 0xAARRGGBB pixels, top row first.
class Bitmap {
 public:
  Bitmap() = default;
  Bitmap(int width, int height)
      : width_(width), height_(height), pixels_(static_cast<std::size_t>(width * height)) {}

  int Width() const { return width_; }
  int Height() const { return height_; }
  std::uint32_t Pixel(int x, int y) const { return pixels_[Index(x, y)]; }
  void SetPixel(int x, int y, std::uint32_t argb) { pixels_[Index(x, y)] = argb; }
  const std::uint32_t* Data() const { return pixels_.data(); }
  /// The part at (x, y) of that size, clipped to the picture.
  Bitmap Part(int x, int y, int width, int height) const;

 private:
  std::size_t Index(int x, int y) const { return static_cast<std::size_t>(y * width_ + x); }

  int width_ = 0, height_ = 0;
  std::vector<std::uint32_t> pixels_;
};

/// Reads a Windows bitmap file (BITMAPFILEHEADER and BITMAPINFOHEADER; 1, 4, 8, 24 or 32 bits, uncompressed).
/// Nothing where the bytes are no such file or its sizes do not fit its length.
std::optional<Bitmap> DecodeBmp(std::span<const std::uint8_t> bytes);

/// How many pixels all icons of one file may have together, so that entries that share an image do not multiply.
inline constexpr std::int64_t kMostIconPixels = 16 << 20;

/// Reads one image of an icon: a DIB and its mask. Nothing where it is none, or is compressed.
std::optional<Bitmap> DecodeIconImage(std::span<const std::uint8_t> bytes);

/// Reads the pictures of an icon file (ICONDIR, entries of DIB images with their masks), in file order; empty
/// where the bytes are no icon file. An image that cannot be read is left out.
std::vector<Bitmap> DecodeIco(std::span<const std::uint8_t> bytes);

}  // namespace platform::ui
