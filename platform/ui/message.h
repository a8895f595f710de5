// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/ui/window.h"

namespace platform::ui {

/// kNoYes: Yes and No, of which No is the default, for what cannot be undone.
enum class Buttons { kOk, kYesNo, kNoYes, kYesNoCancel };
enum class MessageIcon { kNone, kWarning, kQuestion };
enum class Answer { kOk, kYes, kNo, kCancel };

struct Message {
  std::string title;
  std::string text;
  Buttons buttons = Buttons::kOk;
  MessageIcon icon = MessageIcon::kWarning;
  Window* parent = nullptr;
};

/// Shows a modal message on the current desktop and answers the button pressed. The title is that of the
/// current Module.
Answer MessageBox(const std::string& text, Buttons buttons = Buttons::kOk,
                  MessageIcon icon = MessageIcon::kWarning, Window* parent = nullptr);

}  // namespace platform::ui
