// SPDX-License-Identifier: MIT
#include "desktops/qt/help_menu.h"

#include "desktops/qt/guard.h"

namespace desktops::qt {

using platform::ui::HelpEvent;

void AddWhatsThis(QMenu& menu, platform::ui::Form& form, platform::ui::Control* control) {
  const auto ask = [&form, control] {
    Guarded([&] { form.OnHelp({HelpEvent::Kind::kContextMenu, control}); });
  };
  menu.addAction(QMenu::tr("What's &This?"), &menu, ask);
}

}  // namespace desktops::qt
