// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/ui/foreign_bytes.h"
#include "platform/ui/image.h"

namespace platform::ui {

/// The first `limit` icons of a program or dynamic library of the systems that keep icons in such files, one picture of
/// each. An icon is known by its place among them, so one that cannot be read stays as an empty picture.
std::vector<Bitmap> ExecutableIcons(ForeignBytes file, std::size_t limit);

}  // namespace platform::ui
