// SPDX-License-Identifier: MIT
#include "companions/netpath/path_forms.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace netpath {
namespace {

namespace fs = std::filesystem;

bool HasDrive(std::string_view path) {
  return path.size() >= 2 && std::isalpha(static_cast<unsigned char>(path[0])) != 0 && path[1] == ':';
}

// Backslashes separate, except in the name of a file that is there.
std::string WithSlashes(std::string path) {
  std::error_code error;
  if (!fs::exists(path, error)) std::ranges::replace(path, '\\', '/');
  return path;
}

}  // namespace

bool IsUniversal(std::string_view path) { return path.starts_with("\\\\"); }

std::optional<std::string> FullPath(const std::string& path) {
  if (path.empty()) return std::nullopt;
  if (IsUniversal(path) || HasDrive(path)) return path;
  if (path.starts_with("//")) {
    std::string universal = path;
    std::ranges::replace(universal, '/', '\\');
    return universal;
  }
  std::error_code error;
  const fs::path absolute = fs::absolute(WithSlashes(path), error);
  if (error) return std::nullopt;
  // Links are followed: they may lead to another machine's share, or away from one.
  const fs::path followed = fs::weakly_canonical(absolute, error);
  return error ? absolute.lexically_normal().string() : followed.string();
}

std::optional<std::string> TreeOf(std::string_view universal) {
  if (!IsUniversal(universal)) return std::nullopt;
  const std::string_view behind = universal.substr(2);
  const std::size_t end = behind.find('\\');
  if (end == 0 || end == std::string_view::npos) return std::nullopt;
  const std::string_view context = behind.substr(end + 1);
  const bool named = context.size() > 1 && context[0] == '.' && context[1] != '.' && context[1] != '\\';
  return named ? std::optional(std::string(behind.substr(0, end))) : std::nullopt;
}

}  // namespace netpath
