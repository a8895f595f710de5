// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <memory>

#include "desktops/qt/form_view.h"
#include "platform/ui/property_sheet.h"

namespace desktops::qt {

/// Shows a page of somebody else's in a window that is not made of platform/ui: a panel of the library in a wizard that a
/// console has written with the toolkit alone. (A platform/ui sheet takes panels as its pages.) Panel, place and host object
/// may go in any order; what is left behind by the first of them is empty and harmless.
///
/// The one who asked for the panel owns it. Who is asked to save or to set wizard buttons is the panel's own affair: a
/// CAlertPage is given its host dialog, which may be any platform::ui::Window, by whoever made it.
class PanelHost {
 public:
  /// Makes the panel's window inside `place`, which has no layout yet, and makes it the active one.
  PanelHost(platform::ui::PropertyPage& panel, QWidget& place);
  /// Takes the panel's window down; its members keep their values.
  ~PanelHost();
  PanelHost(const PanelHost&) = delete;
  PanelHost& operator=(const PanelHost&) = delete;

  /// Tells the panel that it is in front again, as a wizard does that comes back to it. False when it minds or is gone.
  bool Activate();

 private:
  platform::ui::PropertyPage* Panel() const;

  const platform::ui::Handle panel_;
  QPointer<FormView> view_;
};

}  // namespace desktops::qt
