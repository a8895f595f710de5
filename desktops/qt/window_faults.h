// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <string>
#include <vector>

namespace desktops::qt {

/// For tests: what is wrong with a window as it stands now, for whoever uses it without a mouse or without seeing it. Each
/// fault names the control. The current page of a sheet is looked at, not those behind it.

/// Access keys that two visible controls share, or that lead to nothing.
std::vector<std::string> AccessKeyFaults(const QWidget& window);
/// Steps of Tab that go back against the order of reading: left to right, line by line, column by column.
std::vector<std::string> TabOrderFaults(const QWidget& window);
/// Controls that take the keyboard and have no name or no role that a screen reader could say.
std::vector<std::string> NameFaults(const QWidget& window);

}  // namespace desktops::qt
