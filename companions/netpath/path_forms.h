// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace netpath {

/// Begins with two backslashes.
bool IsUniversal(std::string_view path);

/// The full path of a file, which need not exist. A universal path is its own, and so is one with a drive letter, which
/// means something on the machines that have drives. Nothing for an empty path.
std::optional<std::string> FullPath(const std::string& path);

/// The tree of `\\tree\.object.context...`, which names a volume in a directory tree where a share would stand.
std::optional<std::string> TreeOf(std::string_view universal);

}  // namespace netpath
