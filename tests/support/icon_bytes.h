// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Files with icons, byte by byte.
namespace test_support {

using Bytes = std::vector<std::uint8_t>;

inline void Put(Bytes& bytes, std::uint64_t value, int size) {
  for (int i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

inline void PutZeros(Bytes& bytes, std::size_t count) { bytes.resize(bytes.size() + count); }

inline void PutText(Bytes& bytes, const std::string& text) {
  bytes.insert(bytes.end(), text.begin(), text.end());
}

inline void PutBytes(Bytes& bytes, const Bytes& more) { bytes.insert(bytes.end(), more.begin(), more.end()); }

struct Picture {
  std::int32_t width, height;
  unsigned bits;
  std::vector<std::uint32_t> palette;
  Bytes pixels;  // rows as stored, padded
  unsigned compression = 0;
};

// BITMAPINFOHEADER, palette and rows.
inline Bytes Dib(const Picture& p) {
  Bytes bytes;
  Put(bytes, 40, 4);
  Put(bytes, static_cast<std::uint32_t>(p.width), 4);
  Put(bytes, static_cast<std::uint32_t>(p.height), 4);
  Put(bytes, 1, 2);
  Put(bytes, p.bits, 2);
  Put(bytes, p.compression, 4);
  PutZeros(bytes, 12);
  Put(bytes, p.palette.size(), 4);
  Put(bytes, 0, 4);
  for (const std::uint32_t color : p.palette) Put(bytes, color, 4);
  bytes.insert(bytes.end(), p.pixels.begin(), p.pixels.end());
  return bytes;
}

inline Bytes Ico(const std::vector<Bytes>& images) {
  Bytes bytes;
  Put(bytes, 0, 2);
  Put(bytes, 1, 2);
  Put(bytes, images.size(), 2);
  std::size_t offset = 6 + 16 * images.size();
  for (const Bytes& image : images) {
    Put(bytes, 0, 8);
    Put(bytes, image.size(), 4);
    Put(bytes, offset, 4);
    offset += image.size();
  }
  for (const Bytes& image : images) bytes.insert(bytes.end(), image.begin(), image.end());
  return bytes;
}

/// A square icon image of one colour, opaque.
inline Bytes Plain(int side, std::uint32_t colour) {
  const std::size_t row = static_cast<std::size_t>((side + 31) / 32 * 4 * side);
  return Dib({side, 2 * side, 1, {colour, 0}, Bytes(2 * row)});
}

/// One image that a group lists.
struct Listed {
  int side;
  unsigned bits, image;
};
using Group = std::vector<Listed>;

inline Bytes GroupBytes(const Group& group) {
  Bytes bytes;
  Put(bytes, 0, 2);
  Put(bytes, 1, 2);
  Put(bytes, group.size(), 2);
  for (const Listed& listed : group) {
    Put(bytes, static_cast<unsigned>(listed.side) & 0xFF, 1);
    PutZeros(bytes, 3);
    Put(bytes, 1, 2);
    Put(bytes, listed.bits, 2);
    Put(bytes, 0, 4);
    Put(bytes, listed.image, 2);
  }
  return bytes;
}

/// A file of the 32-bit systems, or of the 64-bit ones, with one section that holds its resources: images, numbered
/// from 1, and groups.
inline Bytes PortableExecutable(const std::vector<Bytes>& images, const std::vector<Group>& groups,
                                bool wide = false) {
  constexpr std::uint32_t kAddress = 0x1000, kDirectory = 0x80000000;
  std::vector<Bytes> blobs = images;
  for (const Group& group : groups) blobs.push_back(GroupBytes(group));
  const auto types = 32u, all = static_cast<unsigned>(blobs.size());
  const auto image_count = static_cast<unsigned>(images.size()), group_count = all - image_count;
  const unsigned names = types + 32 + 8 * all, leaves = names + 24 * all;
  Bytes tree;
  const auto directory = [&tree](unsigned count) {
    PutZeros(tree, 14);
    Put(tree, count, 2);
  };
  directory(2);
  Put(tree, 3, 4);
  Put(tree, kDirectory | types, 4);
  Put(tree, 14, 4);
  Put(tree, kDirectory | (types + 16 + 8 * image_count), 4);
  for (unsigned i = 0; i < all; ++i) {
    if (i == 0) directory(image_count);
    if (i == image_count) directory(group_count);
    Put(tree, (i < image_count ? i : i - image_count) + 1, 4);
    Put(tree, kDirectory | (names + 24 * i), 4);
  }
  for (unsigned i = 0; i < all; ++i) {
    directory(1);
    Put(tree, 1033, 4);
    Put(tree, leaves + 16 * i, 4);
  }
  std::size_t data = leaves + 16 * all;
  for (const Bytes& blob : blobs) {
    Put(tree, kAddress + data, 4);
    Put(tree, blob.size(), 4);
    PutZeros(tree, 8);
    data += blob.size();
  }
  for (const Bytes& blob : blobs) PutBytes(tree, blob);

  const unsigned before_directories = wide ? 108 : 92, optional_header = before_directories + 4 + 16 * 8;
  Bytes file;
  PutText(file, "MZ");
  PutZeros(file, 0x3A);
  Put(file, 0x40, 4);
  PutText(file, std::string("PE\0\0", 4));
  Put(file, 0x14C, 2);
  Put(file, 1, 2);
  PutZeros(file, 12);
  Put(file, optional_header, 2);
  Put(file, 0, 2);
  Put(file, wide ? 0x20B : 0x10B, 2);
  PutZeros(file, before_directories - 2);
  Put(file, 16, 4);
  PutZeros(file, 2 * 8);
  Put(file, kAddress, 4);
  Put(file, tree.size(), 4);
  PutZeros(file, 13 * 8);
  PutText(file, std::string(".rsrc\0\0\0", 8));
  Put(file, tree.size(), 4);
  Put(file, kAddress, 4);
  Put(file, tree.size(), 4);
  Put(file, file.size() + 4 + 16, 4);
  PutZeros(file, 16);
  PutBytes(file, tree);
  return file;
}

/// A file of the 16-bit system with images, numbered from 1, and groups.
inline Bytes SegmentedExecutable(const std::vector<Bytes>& images, const std::vector<Group>& groups) {
  std::vector<Bytes> blobs = images;
  for (const Group& group : groups) blobs.push_back(GroupBytes(group));
  Bytes file;
  PutText(file, "MZ");
  PutZeros(file, 0x3A);
  Put(file, 0x40, 4);
  PutText(file, "NE");
  PutZeros(file, 0x22);
  Put(file, 0x40, 2);
  PutZeros(file, 0x40 - 0x26);
  constexpr unsigned kShift = 4;
  Put(file, kShift, 2);
  std::size_t data = file.size() + 2 * 8 + 12 * blobs.size() + 2 + 15;
  const auto block = [&](unsigned type, std::size_t first, std::size_t end) {
    Put(file, 0x8000 | type, 2);
    Put(file, end - first, 2);
    PutZeros(file, 4);
    for (std::size_t i = first; i < end; ++i) {
      Put(file, data >> kShift, 2);
      Put(file, (blobs[i].size() + 15) >> kShift, 2);
      Put(file, 0, 2);
      Put(file, 0x8000 | (i - first + 1), 2);
      PutZeros(file, 4);
      data += (blobs[i].size() + 15) & ~std::size_t{15};
    }
  };
  block(3, 0, images.size());
  block(14, images.size(), blobs.size());
  Put(file, 0, 2);
  for (const Bytes& blob : blobs) {
    file.resize((file.size() + 15) & ~std::size_t{15});
    PutBytes(file, blob);
  }
  file.resize((file.size() + 15) & ~std::size_t{15});
  return file;
}

}  // namespace test_support
