// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/ui/desktop.h"

namespace desktops::qt {

/// Opens a sound file, or answers null where the file cannot be read or this build plays no sounds.
std::unique_ptr<platform::ui::Sound> OpenSoundFile(const std::string& path);

}  // namespace desktops::qt
