// SPDX-License-Identifier: MIT
// Icon files and programs come from anywhere; a person only browses over them.
#include <cstdlib>

#include "platform/ui/icon_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kLimit = 100;
  constexpr std::int64_t kLargestIcon = 256 * 256;
  const std::vector<platform::ui::Bitmap> icons = platform::ui::DecodeIcons({data, size}, kLimit);
  std::int64_t pixels = 0;
  for (const platform::ui::Bitmap& icon : icons) pixels += std::int64_t{icon.Width()} * icon.Height();
  if (icons.size() > kLimit || pixels >= platform::ui::kMostIconPixels + kLargestIcon) std::abort();
  return 0;
}
