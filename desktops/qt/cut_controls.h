// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <string>
#include <vector>

namespace desktops::qt {

/// For tests: the visible controls of a window that are smaller than they need to be, that stand outside what
/// is around them, or whose text does not fit; each by its text or name, with what is wrong.
std::vector<std::string> CutControls(const QWidget& window);

}  // namespace desktops::qt
