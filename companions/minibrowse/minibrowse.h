// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>

#include "platform/base/guid.h"

namespace platform::ui {
class Window;
}  // namespace platform::ui

namespace minibrowse {

/// Lets a person choose one object, such as a computer, from those that the site knows.
class MiniBrowser {
 public:
  virtual ~MiniBrowser() = default;

  /// Modal choice of an object of class `class_id`. The identifier chosen is written to `result`, the null
  /// GUID when nothing was chosen; answers `result`. `zero` is reserved, `parent` may be null.
  virtual const platform::GUID* dlgMiniBrowser(platform::GUID* result, platform::GUID class_id,
                                               std::uint32_t zero, platform::ui::Window* parent) = 0;
};

/// The real component: offers the computers of the site in a list.
std::unique_ptr<MiniBrowser> MakeMiniBrowser();

}  // namespace minibrowse
