// SPDX-License-Identifier: MIT
#pragma once

namespace desktops::qt {

class FormView;

/// Places the controls of the view's form as its layout says. A form without one shows its controls one under
/// the other, its buttons in a row below. A spin control stands beside its buddy wherever the buddy stands.
void BuildLayout(FormView& view);

}  // namespace desktops::qt
