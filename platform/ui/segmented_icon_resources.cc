// SPDX-License-Identifier: MIT
#include "platform/ui/icon_resources.h"

namespace platform::ui {
namespace {

constexpr std::uint32_t kNumbered = 0x8000;  // marks types and resources that have a number instead of a name
constexpr std::size_t kTypeHeader = 8, kEntrySize = 12;
constexpr std::uint32_t kMostShift = 15;

/// The resources of one type, whose offsets and sizes count in units of 2 to the power of `shift`.
struct TypeBlock {
  ForeignBytes file, entries;
  std::uint32_t shift;

  template <class Take>
  void ForEach(Take&& take) const {
    for (std::size_t at = 0; at + kEntrySize <= entries.size(); at += kEntrySize) {
      const std::size_t offset = std::size_t{U16(entries, at)} << shift;
      const std::size_t size = std::size_t{U16(entries, at + 2)} << shift;
      take(U16(entries, at + 6) & ~kNumbered, Part(file, offset, size));
    }
  }
};

void Collect(std::uint32_t type, const TypeBlock& block, IconResources& found) {
  if (type == (kIconImageType | kNumbered))
    block.ForEach([&](std::uint32_t id, ForeignBytes image) { found.images.emplace(id, image); });
  if (type == (kIconGroupType | kNumbered))
    block.ForEach([&](std::uint32_t, ForeignBytes group) { found.groups.push_back(group); });
}

}  // namespace

IconResources SegmentedIconResources(ForeignBytes file, std::size_t header) {
  IconResources found;
  const ForeignBytes table = From(file, header + U16(file, header + 0x24));
  const std::uint32_t shift = U16(table, 0);
  if (shift > kMostShift) return found;
  // Each round goes on by a type's header at least, so that the file's end is an end.
  for (std::size_t at = 2; U16(table, at) != 0;) {
    const std::size_t size = U16(table, at + 2) * kEntrySize;
    Collect(U16(table, at), {file, Part(table, at + kTypeHeader, size), shift}, found);
    at += kTypeHeader + size;
  }
  return found;
}

}  // namespace platform::ui
