// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace netpath {

/// The path as other machines know it, `\\server\share\...`, when it lies on a mounted network share. `mounts`
/// is the text of a mount table: device, place, kind of file system, one mount a line.
std::optional<std::string> OnMountedShare(std::string_view path, const std::string& mounts);

}  // namespace netpath
