// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/property_sheet.h"

namespace alerting {

namespace ui = platform::ui;

/// Base of the panels that the console puts into its own wizards and sheets. Whoever asked for a panel owns it.
class CAlertPage : public ui::PropertyPage {
 public:
  using ui::PropertyPage::PropertyPage;

  /// The console's window around the panel, which is asked to save its own controls before the panel applies; may
  /// be null. Not owned.
  void SetHostDialog(ui::Window* host) { host_dialog_ = host; }
  ui::Window* HostDialog() const { return host_dialog_; }

  /// 1 while the panel belongs to a response that is being added.
  void SetAddingMark(int mark) { adding_mark_ = mark; }
  int AddingMark() const { return adding_mark_; }

  /// Copies the panel's controls into what it edits. False when that failed or the panel was never shown.
  virtual bool UpdatePanelData() = 0;

 private:
  ui::Window* host_dialog_ = nullptr;
  int adding_mark_ = 0;
};

}  // namespace alerting
