// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <vector>

#include "platform/ui/foreign_bytes.h"

namespace platform::ui {

/// The icons of an executable file as they lie in it. A group lists the images of one icon, in several sizes and depths,
/// by their numbers.
struct IconResources {
  std::map<std::uint32_t, ForeignBytes> images;
  std::vector<ForeignBytes> groups;  ///< in the file's order, by which icons are numbered
};

// Types of resources, the same in both kinds of file.
inline constexpr std::uint32_t kIconImageType = 3;
inline constexpr std::uint32_t kIconGroupType = 14;

/// Those of a file of the 32- and 64-bit systems, whose header "PE" stands at `header`.
IconResources PortableIconResources(ForeignBytes file, std::size_t header);
/// Those of a file of the 16-bit system, whose header "NE" stands at `header`.
IconResources SegmentedIconResources(ForeignBytes file, std::size_t header);

}  // namespace platform::ui
