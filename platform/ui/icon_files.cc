// SPDX-License-Identifier: MIT
#include "platform/ui/icon_files.h"

#include <filesystem>

#include "platform/base/paths.h"
#include "platform/ui/executable_icons.h"

namespace platform::ui {
namespace {

// A person browses over all kinds of files, and each is read while the dialog waits.
constexpr std::uintmax_t kLargestFile = 256 << 20;

bool MayHaveIcons(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error) &&
         std::filesystem::file_size(path, error) <= kLargestFile;
}

}  // namespace

std::vector<Bitmap> DecodeIcons(ForeignBytes bytes, std::size_t limit) {
  std::vector<Bitmap> icons = DecodeIco(bytes);
  if (icons.empty()) icons = ExecutableIcons(bytes, limit);
  if (icons.size() > limit) icons.resize(limit);
  return icons;
}

std::vector<Bitmap> IconsOfFile(const std::string& path, std::size_t limit) {
  std::string bytes;
  if (!MayHaveIcons(path) || !ReadWholeFile(path, bytes)) return {};
  return DecodeIcons({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()}, limit);
}

}  // namespace platform::ui
