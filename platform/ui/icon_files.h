// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/ui/foreign_bytes.h"
#include "platform/ui/image.h"

namespace platform::ui {

/// The first `limit` icons of an icon file, a program or a dynamic library; empty where the bytes are none of these.
std::vector<Bitmap> DecodeIcons(ForeignBytes bytes, std::size_t limit);

/// The same of a file. What is no ordinary file, or is larger than any with icons, is not read.
std::vector<Bitmap> IconsOfFile(const std::string& path, std::size_t limit);

}  // namespace platform::ui
