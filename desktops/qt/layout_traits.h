// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/layout.h"

namespace platform::ui {
class Control;
class Edit;
class Form;
class Spin;
}  // namespace platform::ui

namespace desktops::qt {

/// Whether the control's widget carries the label itself (buttons, check boxes), so that none stands beside
/// it.
bool CarriesLabel(const platform::ui::Control& control);
/// Whether the node is a control with a label of its own on the left.
bool HasLabelOnLeft(const platform::ui::LayoutNode& node);
bool IsButton(const platform::ui::LayoutNode& node);

/// Whether a node uses more room than it needs: across, or downwards.
bool IsWide(const platform::ui::LayoutNode& node);
bool IsTall(const platform::ui::LayoutNode& node);

/// The spin control whose buddy the control is, or null.
platform::ui::Spin* SpinOf(const platform::ui::Control& control);

/// The layout of a form that has none of its own.
platform::ui::LayoutNode DefaultLayout(const platform::ui::Form& form);

}  // namespace desktops::qt
