// SPDX-License-Identifier: MIT
#include "platform/ui/image.h"

#include <algorithm>
#include <array>

#include "platform/ui/foreign_bytes.h"

namespace platform::ui {
namespace {

using Bytes = ForeignBytes;

// Bounds what a few foreign bytes can make us allocate; no picture of ours comes near.
constexpr std::int64_t kMostSide = 16384;
constexpr std::int64_t kMostIconSide = 256;

constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kInfoHeaderSize = 40;
constexpr std::size_t kIconDirectorySize = 6;
constexpr std::size_t kIconEntrySize = 16;
constexpr std::uint32_t kOpaque = 0xFF000000;

// A device-independent bitmap: the header of BMP files and of icon images.
struct Dib {
  int width = 0, height = 0;
  bool top_down = false;
  unsigned bits = 0;
  std::size_t pixels_offset = 0;  // behind header and palette
  std::array<std::uint32_t, 256> palette{};

  std::size_t RowSize(unsigned bits_per_pixel) const {
    return (static_cast<std::size_t>(width) * bits_per_pixel + 31) / 32 * 4;
  }
};

bool ReadPalette(Bytes bytes, std::size_t header_size, Dib& dib) {
  std::size_t count = 0;
  if (dib.bits <= 8) {
    const std::size_t used = U32(bytes, 32);
    count = used != 0 ? used : std::size_t{1} << dib.bits;
    if (count > dib.palette.size()) return false;
  }
  dib.pixels_offset = header_size + count * 4;
  if (dib.pixels_offset > bytes.size()) return false;
  dib.palette.fill(kOpaque);  // for indexes beyond the palette
  for (std::size_t i = 0; i < count; ++i) dib.palette[i] |= U32(bytes, header_size + i * 4);
  return true;
}

// `halves`: an icon's header counts the rows of picture and mask together.
std::optional<Dib> ReadHeader(Bytes bytes, std::int64_t most_side, int halves) {
  if (bytes.size() < kInfoHeaderSize) return std::nullopt;
  const std::size_t header_size = U32(bytes, 0);
  if (header_size < kInfoHeaderSize || header_size > bytes.size()) return std::nullopt;
  const std::int64_t width = static_cast<std::int32_t>(U32(bytes, 4));
  std::int64_t height = static_cast<std::int32_t>(U32(bytes, 8));
  Dib dib;
  dib.top_down = height < 0;
  height = (dib.top_down ? -height : height) / halves;
  if (width < 1 || width > most_side || height < 1 || height > most_side) return std::nullopt;
  dib.width = static_cast<int>(width);
  dib.height = static_cast<int>(height);
  dib.bits = U16(bytes, 14);
  const bool known = dib.bits == 1 || dib.bits == 4 || dib.bits == 8 || dib.bits == 24 || dib.bits == 32;
  const bool compressed = U32(bytes, 16) != 0;
  if (!known || compressed || !ReadPalette(bytes, header_size, dib)) return std::nullopt;
  return dib;
}

// The bits of pixel `x` of a row of 1, 4 or 8 bits a pixel; the leftmost pixel is in the highest bits.
unsigned PackedPixel(Bytes row, unsigned bits, std::size_t x) {
  const std::size_t bit = x * bits;
  return row[bit / 8] >> (8 - bits - bit % 8) & ((1u << bits) - 1);
}

std::uint32_t PixelOf(const Dib& dib, Bytes row, std::size_t x) {
  if (dib.bits <= 8) return dib.palette[PackedPixel(row, dib.bits, x)];
  const std::size_t at = x * dib.bits / 8;
  const auto color = static_cast<std::uint32_t>(row[at] | row[at + 1] << 8 | row[at + 2] << 16);
  return dib.bits == 32 ? color | static_cast<std::uint32_t>(row[at + 3]) << 24 : color | kOpaque;
}

bool HasAlpha(const Bitmap& picture) {
  const std::size_t count =
      static_cast<std::size_t>(picture.Width()) * static_cast<std::size_t>(picture.Height());
  return std::any_of(picture.Data(), picture.Data() + count,
                     [](std::uint32_t p) { return (p & kOpaque) != 0; });
}

Bytes RowOf(const Dib& dib, Bytes rows, unsigned bits, int y) {
  const int stored = dib.top_down ? y : dib.height - 1 - y;
  const std::size_t size = dib.RowSize(bits);
  return rows.subspan(static_cast<std::size_t>(stored) * size, size);
}

std::optional<Bitmap> ReadPixels(const Dib& dib, Bytes pixels) {
  if (pixels.size() < dib.RowSize(dib.bits) * static_cast<std::size_t>(dib.height)) return std::nullopt;
  Bitmap picture(dib.width, dib.height);
  for (int y = 0; y < dib.height; ++y) {
    const Bytes row = RowOf(dib, pixels, dib.bits, y);
    for (int x = 0; x < dib.width; ++x)
      picture.SetPixel(x, y, PixelOf(dib, row, static_cast<std::size_t>(x)));
  }
  return picture;
}

void MakeOpaque(Bitmap& picture) {
  for (int y = 0; y < picture.Height(); ++y) {
    for (int x = 0; x < picture.Width(); ++x) picture.SetPixel(x, y, picture.Pixel(x, y) | kOpaque);
  }
}

bool ApplyMask(const Dib& dib, Bytes mask, Bitmap& picture) {
  if (mask.size() < dib.RowSize(1) * static_cast<std::size_t>(dib.height)) return false;
  for (int y = 0; y < dib.height; ++y) {
    const Bytes row = RowOf(dib, mask, 1, y);
    for (int x = 0; x < dib.width; ++x) {
      const bool clear = PackedPixel(row, 1, static_cast<std::size_t>(x)) != 0;
      picture.SetPixel(x, y, clear ? 0 : picture.Pixel(x, y) | kOpaque);
    }
  }
  return true;
}

}  // namespace

Bitmap Bitmap::Part(int x, int y, int width, int height) const {
  const int left = std::clamp(x, 0, width_), top = std::clamp(y, 0, height_);
  const auto end = [](int from, int size, int most) {
    return static_cast<int>(std::clamp(std::int64_t{from} + size, std::int64_t{0}, std::int64_t{most}));
  };
  const int right = std::max(left, end(x, width, width_)), bottom = std::max(top, end(y, height, height_));
  Bitmap part(right - left, bottom - top);
  for (int row = 0; row < part.height_; ++row) {
    for (int column = 0; column < part.width_; ++column) {
      part.SetPixel(column, row, Pixel(left + column, top + row));
    }
  }
  return part;
}

std::optional<Bitmap> DecodeBmp(Bytes bytes) {
  if (bytes.size() < kFileHeaderSize || bytes[0] != 'B' || bytes[1] != 'M') return std::nullopt;
  const std::optional<Dib> dib = ReadHeader(bytes.subspan(kFileHeaderSize), kMostSide, 1);
  if (!dib) return std::nullopt;
  std::optional<Bitmap> picture = ReadPixels(*dib, From(bytes, U32(bytes, 10)));
  // The fourth byte of a 32-bit pixel is often left zero by who wrote the file.
  if (picture && !HasAlpha(*picture)) MakeOpaque(*picture);
  return picture;
}

std::optional<Bitmap> DecodeIconImage(Bytes bytes) {
  const std::optional<Dib> dib = ReadHeader(bytes, kMostIconSide, 2);
  if (!dib) return std::nullopt;
  const Bytes pixels = bytes.subspan(dib->pixels_offset);
  std::optional<Bitmap> picture = ReadPixels(*dib, pixels);
  // An image of 32 bits has its own transparency; old ones have zeros there and need the mask.
  if (!picture || (dib->bits == 32 && HasAlpha(*picture))) return picture;
  const std::size_t picture_size = dib->RowSize(dib->bits) * static_cast<std::size_t>(dib->height);
  if (!ApplyMask(*dib, pixels.subspan(picture_size), *picture)) return std::nullopt;
  return picture;
}

std::vector<Bitmap> DecodeIco(Bytes bytes) {
  std::vector<Bitmap> icons;
  if (bytes.size() < kIconDirectorySize || U16(bytes, 0) != 0 || U16(bytes, 2) != 1) return icons;
  const std::size_t room = (bytes.size() - kIconDirectorySize) / kIconEntrySize;
  const std::size_t count = std::min<std::size_t>(U16(bytes, 4), room);
  std::int64_t pixels = 0;
  for (std::size_t i = 0; i < count && pixels < kMostIconPixels; ++i) {
    const std::size_t entry = kIconDirectorySize + i * kIconEntrySize;
    const Bytes image = ui::Part(bytes, U32(bytes, entry + 12), U32(bytes, entry + 8));
    std::optional<Bitmap> icon = DecodeIconImage(image);
    // An image that cannot be read has cost its bytes; many entries may share it.
    pixels += icon ? std::int64_t{icon->Width()} * icon->Height() : std::ssize(image);
    if (icon) icons.push_back(std::move(*icon));
  }
  return icons;
}

}  // namespace platform::ui
