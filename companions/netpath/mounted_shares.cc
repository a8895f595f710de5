// SPDX-License-Identifier: MIT
#include "companions/netpath/mounted_shares.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace netpath {
namespace {

struct Mount {
  std::string device, place, kind;
};

bool IsOctal(std::string_view digits) {
  return digits.size() == 3 && digits.find_first_not_of("01234567") == std::string_view::npos;
}

// The table writes blanks and backslashes as "\040", "\134".
std::string Unescaped(const std::string& field) {
  std::string text;
  for (std::size_t i = 0; i < field.size(); ++i) {
    const std::string digits = field[i] == '\\' ? field.substr(i + 1, 3) : std::string();
    text += IsOctal(digits) ? static_cast<char>(std::stoi(digits, nullptr, 8)) : field[i];
    if (IsOctal(digits)) i += 3;
  }
  return text;
}

bool IsWithin(std::string_view path, std::string_view place) {
  if (place == "/") return path.starts_with('/');
  return path.starts_with(place) && (path.size() == place.size() || path[place.size()] == '/');
}

// The mount that the path lies on: the deepest, and of two at one place the later, which hides the other.
std::optional<Mount> MountOf(std::string_view path, const std::string& mounts) {
  std::optional<Mount> deepest;
  std::istringstream lines(mounts);
  for (std::string line; std::getline(lines, line);) {
    Mount mount;
    if (!(std::istringstream(line) >> mount.device >> mount.place >> mount.kind)) continue;
    mount.place = Unescaped(mount.place);
    if (!IsWithin(path, mount.place)) continue;
    if (!deepest || mount.place.size() >= deepest->place.size()) deepest = std::move(mount);
  }
  return deepest;
}

// "//server/share" and "server:/export" are both `\\server\...`.
std::optional<std::string> ShareOf(const Mount& mount) {
  static constexpr std::array kWindowsShares{"cifs", "smb3", "smbfs"};
  const std::string device = Unescaped(mount.device);
  if (std::ranges::find(kWindowsShares, mount.kind) != kWindowsShares.end()) return device;
  const std::size_t colon = device.find(":/");
  if (!mount.kind.starts_with("nfs") || colon == std::string::npos) return std::nullopt;
  return "//" + device.substr(0, colon) + device.substr(colon + 1);
}

}  // namespace

std::optional<std::string> OnMountedShare(std::string_view path, const std::string& mounts) {
  // A backslash in a file's own name would read as a separator elsewhere.
  if (path.find('\\') != std::string_view::npos) return std::nullopt;
  const std::optional<Mount> mount = MountOf(path, mounts);
  std::optional<std::string> share = mount ? ShareOf(*mount) : std::nullopt;
  if (!share || !share->starts_with("//")) return std::nullopt;
  while (share->ends_with('/')) share->pop_back();
  share->append(path.substr(mount->place == "/" ? 0 : mount->place.size()));
  std::ranges::replace(*share, '/', '\\');
  return share;
}

}  // namespace netpath
