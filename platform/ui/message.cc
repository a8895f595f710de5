// SPDX-License-Identifier: MIT
#include "platform/ui/message.h"

#include "platform/base/module.h"
#include "platform/ui/desktop.h"

namespace platform::ui {

Answer MessageBox(const std::string& text, Buttons buttons, MessageIcon icon, Window* parent) {
  return Desktop::Current().ShowMessage({Module::Current().Title(), text, buttons, icon, parent});
}

}  // namespace platform::ui
