// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/property_sheet.h"

namespace alerting {

/// Base of the panels that the library makes for a console's own wizards and sheets. Whoever asked for a panel owns it, and
/// destroys it with `delete` once nothing shows it any more.
///
/// A console shows a panel as a page of a sheet or wizard of its own (platform::ui::PropertySheet::AddPage); one whose
/// windows are made with the toolkit alone puts it into them with desktops/qt/panel_host.h. What a person does in a panel
/// runs in the library's own resource context wherever it stands. Nothing is written before the console asks for it
/// (UserUpdatePanelData, ResponseUpdatePanelData) or the sheet around the panel applies.
class CAlertPage : public platform::ui::PropertyPage {
 public:
  using PropertyPage::PropertyPage;

  /// The console's window around the panel: asked to save its own controls (Window::UpdateData) before the panel applies or
  /// its wizard finishes, and told which wizard buttons fit (Window::SetWizardButtons). May be null. Not owned.
  void SetHostDialog(platform::ui::Window* host) { host_dialog_ = host; }
  platform::ui::Window* HostDialog() const { return host_dialog_; }

  /// 1 while the panel belongs to a response that is being added.
  void SetAddingMark(int mark) { adding_mark_ = mark; }
  int AddingMark() const { return adding_mark_; }

  /// Copies the panel's controls into what it edits. False when that failed or the panel was never shown.
  virtual bool UpdatePanelData() = 0;

 private:
  platform::ui::Window* host_dialog_ = nullptr;
  int adding_mark_ = 0;
};

}  // namespace alerting
