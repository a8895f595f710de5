// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/ui/form.h"
#include "platform/ui/property_sheet.h"
#include "platform/ui/spin.h"

namespace desktops {

/// The control with exactly that label, a visible one before a hidden one; null where there is none.
platform::ui::Control* FindControl(const platform::ui::Form& form, const std::string& label);

/// The button with that label in the nearest row around the control, or null.
platform::ui::Button* FindButtonBeside(const platform::ui::Form& form, const platform::ui::Control& control,
                                       const std::string& button);

/// The spin beside the field with that label, or null.
platform::ui::Spin* FindSpin(const platform::ui::Form& form, const std::string& buddy_label);

/// True when the layout has a note or a group with that text.
bool HasText(const platform::ui::LayoutNode& layout, const std::string& text);

/// The buttons of every sheet, in the order in which they stand.
struct NamedSheetButton {
  platform::ui::SheetButton button;
  std::string label;
};
const std::vector<NamedSheetButton>& SheetButtons();
/// The sheet button with that label, with or without its access key.
std::optional<platform::ui::SheetButton> FindSheetButton(const std::string& label);

}  // namespace desktops
