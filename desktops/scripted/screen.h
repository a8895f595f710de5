// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/ui/form.h"
#include "platform/ui/lists.h"
#include "platform/ui/property_sheet.h"

namespace desktops {

/// What a control shows as its value; nothing for one that has only its label. A masked field shows "*" for
/// each character.
std::string ShownValue(const platform::ui::Control& control);

std::vector<std::string> ItemsOf(const platform::ui::ItemList& list);
std::vector<std::vector<std::string>> RowsOf(const platform::ui::ListView& list);
/// The captions of the tabs; none in a wizard.
std::vector<std::string> TabsOf(const platform::ui::PropertySheet& sheet);

/// The visible controls, one a line: label, state, value.
std::string DescribeControls(const platform::ui::Form& form);
/// Caption, tabs and buttons of a sheet, and the controls of its page.
std::string DescribeSheet(const platform::ui::PropertySheet& sheet);

}  // namespace desktops
