// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

#include "platform/ui/form.h"

namespace desktops::qt {

/// Adds "What's This?", which asks the form for help on `control` (null: on the form itself).
void AddWhatsThis(QMenu& menu, platform::ui::Form& form, platform::ui::Control* control);

}  // namespace desktops::qt
