// SPDX-License-Identifier: MIT
#include "platform/ui/executable_icons.h"

#include <cstdlib>
#include <tuple>

#include "platform/ui/icon_resources.h"

namespace platform::ui {
namespace {

constexpr int kWantedSide = 32;  // the usual size of an icon in a window
constexpr std::size_t kGroupHeader = 6, kGroupEntry = 14;
// These bound the work on groups that no program made: no icon comes in so many sizes.
constexpr std::size_t kMostImages = 256, kMostTries = 4;

/// An image of a group, by how far it is from the wanted size; then the one with more colours comes first.
struct Candidate {
  int distance, colours_lacking;
  std::uint32_t image;
  auto operator<=>(const Candidate&) const = default;
};

Candidate CandidateAt(ForeignBytes group, std::size_t at) {
  const int side = group[at] == 0 ? 256 : group[at];
  return {std::abs(side - kWantedSide), -static_cast<int>(U16(group, at + 6)), U16(group, at + 12)};
}

std::vector<Candidate> BestFirst(ForeignBytes group) {
  std::vector<Candidate> candidates;
  const std::size_t count_told = std::min<std::size_t>(U16(group, 4), kMostImages);
  const std::size_t end = std::min(group.size(), kGroupHeader + count_told * kGroupEntry);
  for (std::size_t at = kGroupHeader; at + kGroupEntry <= end; at += kGroupEntry)
    candidates.push_back(CandidateAt(group, at));
  const std::size_t count = std::min(candidates.size(), kMostTries);
  std::partial_sort(candidates.begin(), candidates.begin() + static_cast<std::ptrdiff_t>(count),
                    candidates.end());
  candidates.resize(count);
  return candidates;
}

Bitmap PictureOf(const IconResources& resources, ForeignBytes group) {
  for (const Candidate& candidate : BestFirst(group)) {
    const auto image = resources.images.find(candidate.image);
    if (image == resources.images.end()) continue;
    if (std::optional<Bitmap> picture = DecodeIconImage(image->second)) return std::move(*picture);
  }
  return {};
}

IconResources ResourcesOf(ForeignBytes file) {
  constexpr std::uint32_t kOldHeader = 0x5A4D, kPortable = 0x4550, kSegmented = 0x454E;  // "MZ", "PE", "NE"
  if (U16(file, 0) != kOldHeader) return {};
  const std::size_t header = U32(file, 0x3C);
  if (U32(file, header) == kPortable) return PortableIconResources(file, header);
  return U16(file, header) == kSegmented ? SegmentedIconResources(file, header) : IconResources();
}

}  // namespace

std::vector<Bitmap> ExecutableIcons(ForeignBytes file, std::size_t limit) {
  const IconResources resources = ResourcesOf(file);
  std::vector<Bitmap> icons;
  std::int64_t pixels = 0;
  for (const ForeignBytes group : resources.groups) {
    if (icons.size() >= limit || pixels >= kMostIconPixels) break;
    icons.push_back(PictureOf(resources, group));
    pixels += std::int64_t{icons.back().Width()} * icons.back().Height();
  }
  return icons;
}

}  // namespace platform::ui
