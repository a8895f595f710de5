// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/// Files with icons, byte by byte.
namespace test_support {

using Bytes = std::vector<std::uint8_t>;

inline void Put(Bytes& bytes, std::uint64_t value, int size) {
  for (int i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

/// Numbers one behind the other, each with its size in bytes.
using Numbers = std::vector<std::pair<std::uint64_t, int>>;
inline void Put(Bytes& bytes, const Numbers& numbers) {
  for (const auto& [value, size] : numbers) Put(bytes, value, size);
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
  const auto width = static_cast<std::uint32_t>(p.width), height = static_cast<std::uint32_t>(p.height);
  Put(bytes, {{40, 4}, {width, 4}, {height, 4}, {1, 2}, {p.bits, 2}, {p.compression, 4}});
  PutZeros(bytes, 12);
  Put(bytes, {{p.palette.size(), 4}, {0, 4}});
  for (const std::uint32_t color : p.palette) Put(bytes, color, 4);
  PutBytes(bytes, p.pixels);
  return bytes;
}

inline Bytes Ico(const std::vector<Bytes>& images) {
  Bytes bytes;
  Put(bytes, {{0, 2}, {1, 2}, {images.size(), 2}});
  std::size_t offset = 6 + 16 * images.size();
  for (const Bytes& image : images) {
    Put(bytes, {{0, 8}, {image.size(), 4}, {offset, 4}});
    offset += image.size();
  }
  for (const Bytes& image : images) PutBytes(bytes, image);
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
  Put(bytes, {{0, 2}, {1, 2}, {group.size(), 2}});
  for (const Listed& listed : group)
    Put(bytes, {{listed.side & 0xFF, 4}, {1, 2}, {listed.bits, 2}, {0, 4}, {listed.image, 2}});
  return bytes;
}

/// The images and, behind them, the groups.
inline std::vector<Bytes> Blobs(std::vector<Bytes> images, const std::vector<Group>& groups) {
  for (const Group& group : groups) images.push_back(GroupBytes(group));
  return images;
}

/// The beginning of an executable, up to the header at 0x40.
inline Bytes DosStub() {
  Bytes file;
  PutText(file, "MZ");
  PutZeros(file, 0x3A);
  Put(file, 0x40, 4);
  return file;
}

/// A file of the 32-bit systems, or of the 64-bit ones, with one section that holds its resources: images, numbered
/// from 1, and groups.
inline Bytes PortableExecutable(const std::vector<Bytes>& images, const std::vector<Group>& groups,
                                bool wide = false) {
  constexpr std::uint32_t kAddress = 0x1000, kDirectory = 0x80000000;
  const std::vector<Bytes> blobs = Blobs(images, groups);
  const auto types = 32u, all = static_cast<unsigned>(blobs.size());
  const auto image_count = static_cast<unsigned>(images.size()), group_count = all - image_count;
  const unsigned names = types + 32 + 8 * all, leaves = names + 24 * all;
  Bytes tree;
  const auto directory = [&tree](unsigned count) {
    PutZeros(tree, 14);
    Put(tree, count, 2);
  };
  directory(2);
  Put(tree, {{3, 4}, {kDirectory | types, 4}, {14, 4}, {kDirectory | (types + 16 + 8 * image_count), 4}});
  for (unsigned i = 0; i < all; ++i) {
    if (i == 0) directory(image_count);
    if (i == image_count) directory(group_count);
    Put(tree, {{(i < image_count ? i : i - image_count) + 1, 4}, {kDirectory | (names + 24 * i), 4}});
  }
  for (unsigned i = 0; i < all; ++i) {
    directory(1);
    Put(tree, {{1033, 4}, {leaves + 16 * i, 4}});
  }
  std::size_t data = leaves + 16 * all;
  for (const Bytes& blob : blobs) {
    Put(tree, {{kAddress + data, 4}, {blob.size(), 4}, {0, 8}});
    data += blob.size();
  }
  for (const Bytes& blob : blobs) PutBytes(tree, blob);

  const unsigned before_directories = wide ? 108 : 92, optional_header = before_directories + 4 + 16 * 8;
  Bytes file = DosStub();
  PutText(file, std::string("PE\0\0", 4));
  Put(file, {{0x14C, 2}, {1, 2}, {0, 8}, {0, 4}, {optional_header, 2}, {0, 2}, {wide ? 0x20B : 0x10B, 2}});
  PutZeros(file, before_directories - 2);
  Put(file, {{16, 4}, {0, 8}, {0, 8}, {kAddress, 4}, {tree.size(), 4}});
  PutZeros(file, 13 * 8);
  PutText(file, std::string(".rsrc\0\0\0", 8));
  Put(file, {{tree.size(), 4}, {kAddress, 4}, {tree.size(), 4}, {file.size() + 16 + 16, 4}});
  PutZeros(file, 16);
  PutBytes(file, tree);
  return file;
}

/// A file of the 16-bit system with images, numbered from 1, and groups.
inline Bytes SegmentedExecutable(const std::vector<Bytes>& images, const std::vector<Group>& groups) {
  const std::vector<Bytes> blobs = Blobs(images, groups);
  Bytes file = DosStub();
  PutText(file, "NE");
  PutZeros(file, 0x22);
  Put(file, 0x40, 2);
  PutZeros(file, 0x40 - 0x26);
  constexpr unsigned kShift = 4;
  Put(file, kShift, 2);
  const auto whole = [](std::size_t size) { return (size + 15) >> kShift; };
  std::size_t data = whole(file.size() + 2 * 8 + 12 * blobs.size() + 2);
  const auto block = [&](unsigned type, std::size_t first, std::size_t end) {
    Put(file, {{0x8000 | type, 2}, {end - first, 2}, {0, 4}});
    for (std::size_t i = first; i < end; ++i) {
      Put(file, {{data, 2}, {whole(blobs[i].size()), 2}, {0, 2}, {0x8000 | (i - first + 1), 2}, {0, 4}});
      data += whole(blobs[i].size());
    }
  };
  block(3, 0, images.size());
  block(14, images.size(), blobs.size());
  Put(file, 0, 2);
  for (const Bytes& blob : blobs) {
    file.resize(whole(file.size()) << kShift);
    PutBytes(file, blob);
  }
  file.resize(whole(file.size()) << kShift);
  return file;
}

}  // namespace test_support
