// SPDX-License-Identifier: MIT
#include <array>
#include <optional>
#include <utility>

#include "platform/ui/icon_resources.h"

namespace platform::ui {
namespace {

constexpr std::size_t kOptionalHeader = 24;  // from the signature on
constexpr std::uint32_t kMagic32 = 0x10B, kMagic64 = 0x20B;
constexpr std::size_t kSectionSize = 40;
constexpr std::size_t kMostSections = 96;  // as many as the system itself loads
constexpr std::size_t kDirectoryHeader = 16, kDirectoryEntry = 8;
constexpr std::uint32_t kIsDirectory = 0x80000000;

/// Finds the bytes at an address of memory, as if the file were loaded.
class Sections {
 public:
  Sections(ForeignBytes file, std::size_t table, std::size_t count)
      : file_(file), table_(Part(file, table, std::min(count, kMostSections) * kSectionSize)) {}

  /// The bytes from that address to the end of its section.
  ForeignBytes At(std::uint32_t address) const {
    for (std::size_t at = 0; at + kSectionSize <= table_.size(); at += kSectionSize) {
      const std::uint32_t start = U32(table_, at + 12), size = U32(table_, at + 16);
      if (address < start || address - start >= size) continue;
      return From(Part(file_, U32(table_, at + 20), size), address - start);
    }
    return {};
  }

 private:
  ForeignBytes file_, table_;
};

/// The tree of resources: directories by type, by name and by language, always three deep.
class ResourceTree {
 public:
  ResourceTree(const Sections& sections, std::uint32_t address)
      : sections_(sections), bytes_(sections.At(address)) {}

  /// Calls `take` with number and bytes of each resource of a type.
  template <class Take>
  void ForEach(std::uint32_t type, Take&& take) const {
    const std::uint32_t names = FindType(type);
    for (std::size_t i = 0; names != 0 && i < Count(names); ++i) {
      const auto [id, languages] = EntryOf(names, i);
      if ((languages & kIsDirectory) != 0) take(id, FirstLanguage(languages & ~kIsDirectory));
    }
  }

 private:
  // Named entries come first, then numbered ones; no more than there is room for.
  std::size_t Count(std::size_t directory) const {
    const std::size_t told = U16(bytes_, directory + 12) + U16(bytes_, directory + 14);
    return std::min(told, From(bytes_, directory + kDirectoryHeader).size() / kDirectoryEntry);
  }

  std::pair<std::uint32_t, std::uint32_t> EntryOf(std::size_t directory, std::size_t index) const {
    const std::size_t at = directory + kDirectoryHeader + index * kDirectoryEntry;
    return {U32(bytes_, at), U32(bytes_, at + 4)};
  }

  // Where the directory of the type begins, or 0: there begins the root.
  std::uint32_t FindType(std::uint32_t type) const {
    for (std::size_t i = 0; i < Count(0); ++i) {
      const auto [id, target] = EntryOf(0, i);
      if (id == type) return (target & kIsDirectory) != 0 ? target & ~kIsDirectory : 0;
    }
    return 0;
  }

  ForeignBytes FirstLanguage(std::uint32_t directory) const {
    if (Count(directory) == 0) return {};
    const std::uint32_t leaf = EntryOf(directory, 0).second;
    return Part(sections_.At(U32(bytes_, leaf)), 0, U32(bytes_, std::size_t{leaf} + 4));
  }

  const Sections& sections_;
  ForeignBytes bytes_;
};

// Where the address of the resources stands; the header's size depends on the width of the system.
std::optional<std::size_t> ResourceAddressPlace(ForeignBytes file, std::size_t optional_header) {
  constexpr std::size_t kResourceIndex = 2, kDirectories32 = 96, kDirectories64 = 112;
  const std::uint32_t magic = U16(file, optional_header);
  if (magic != kMagic32 && magic != kMagic64) return std::nullopt;
  const std::size_t directories = optional_header + (magic == kMagic64 ? kDirectories64 : kDirectories32);
  if (U32(file, directories - 4) <= kResourceIndex) return std::nullopt;
  return directories + kResourceIndex * 8;
}

}  // namespace

IconResources PortableIconResources(ForeignBytes file, std::size_t header) {
  IconResources found;
  const std::optional<std::size_t> place = ResourceAddressPlace(file, header + kOptionalHeader);
  if (!place) return found;
  const std::size_t table = header + kOptionalHeader + U16(file, header + 20);
  const Sections sections(file, table, U16(file, header + 6));
  const ResourceTree tree(sections, U32(file, *place));
  tree.ForEach(kIconImageType,
               [&](std::uint32_t id, ForeignBytes image) { found.images.emplace(id, image); });
  tree.ForEach(kIconGroupType, [&](std::uint32_t, ForeignBytes group) { found.groups.push_back(group); });
  return found;
}

}  // namespace platform::ui
