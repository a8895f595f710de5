// SPDX-License-Identifier: MIT
#pragma once

#include <QKeyEvent>
#include <optional>
#include <string>

#include "platform/ui/control.h"

namespace desktops::qt {

/// The control's name of a key, or nothing for keys that no control asks about.
std::optional<platform::ui::Key> KeyOf(const QKeyEvent& event);
/// The Qt key of a control's key.
Qt::Key QtKeyOf(platform::ui::Key key);

/// The arrow and page keys by which a text field's caret moves.
bool MovesCaret(int qt_key);

/// The text that a key press types; empty for access keys, shortcuts and keys without a character.
std::u32string TypedText(const QKeyEvent& event);
/// The control character that a key press stands for in a text field (select all, cut, copy, paste, undo,
/// backspace, and Enter where it starts a new line), or 0.
char32_t EditCommand(const QKeyEvent& event, bool multi_line);

}  // namespace desktops::qt
