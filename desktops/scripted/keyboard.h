// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/ui/form.h"

namespace desktops {

/// What a toolkit's widgets do with the keyboard, done to the objects themselves.

/// Presses and releases a key in the control with the focus.
void PressKey(platform::ui::Form& form, platform::ui::Key key);

/// Types a character into the control with the focus, "\b" backspace and "\n" Enter among them. False when
/// that control takes no text.
bool TypeCharacter(platform::ui::Form& form, char32_t c);

/// Moves the focus as Tab does: a one-line field has its whole text selected, unless it brings its own
/// selection back as it gains the focus.
void TabInto(platform::ui::Form& form, platform::ui::Control& control);

/// Presses Alt and the key; false when no control within reach has that access key.
bool PressAccessKey(platform::ui::Form& form, char key);

/// The code points of a UTF-8 text.
std::u32string CodePoints(const std::string& text);

}  // namespace desktops
