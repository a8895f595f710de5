// SPDX-License-Identifier: MIT
#include "companions/ctxhelp/resource_directory.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>

namespace ctxhelp {
namespace {

namespace fs = std::filesystem;

/// The directory of the library that this code is in, or an empty path. Free of links: the loader may have come by one,
/// such as /lib for /usr/lib, and ".." is then not what its name says.
fs::path LibraryDirectory() {
  static const char anchor = 0;
  Dl_info info{};
  if (dladdr(&anchor, &info) == 0 || info.dli_fname == nullptr) return {};
  std::error_code ignored;
  return fs::canonical(fs::absolute(info.dli_fname, ignored).parent_path(), ignored);
}

bool IsDirectory(const fs::path& path) {
  std::error_code ignored;
  return !path.empty() && fs::is_directory(path, ignored);
}

}  // namespace

std::string ResourceDirectory() {
  const char* chosen = std::getenv("ALERTING_RESOURCES");
  const fs::path candidates[] = {chosen != nullptr ? chosen : "",
                                 LibraryDirectory() / ALERTING_RESOURCES_BESIDE};
  for (const fs::path& candidate : candidates)
    if (IsDirectory(candidate)) return candidate.lexically_normal().string();
  return {};
}

}  // namespace ctxhelp
