// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>
#include <QTabWidget>
#include <map>

#include "desktops/qt/modal_window.h"
#include "platform/ui/property_sheet.h"

class QHBoxLayout;

namespace desktops::qt {

/// A property sheet with its tabs and buttons, or a wizard, which shows one page without tabs. A page's view
/// is made when the page is first the active one.
class SheetWindow : public ModalWindow {
 public:
  SheetWindow(platform::ui::PropertySheet& sheet, QWidget* parent);

  void OnWindowChanged(platform::ui::Window& window, platform::ui::Change change) override;

 private:
  void AddButtons();
  QString ApplyText() const;
  void MakeTabs();
  void FollowPages();
  void AddTab(const platform::ui::PropertyPage& page);
  void RemoveTab(int index);
  void MakeRoomForPages();
  void PressDefault() override;
  QPushButton* UsualDefault() const override;
  void ShowPage();
  void ShowButtons();
  void EndTabOrderWithButtons(const FormView& page);
  void OnTabChosen(int index);
  FormView& ViewOf(platform::ui::PropertyPage& page, int index);

  platform::ui::PropertySheet& sheet_;
  QTabWidget* tabs_;
  QHBoxLayout* row_;
  std::map<platform::ui::SheetButton, QPushButton*> buttons_;
  std::vector<const platform::ui::PropertyPage*> placed_;  ///< the page of each tab; may be gone
  std::map<const platform::ui::PropertyPage*, std::unique_ptr<FormView>> views_;
};

}  // namespace desktops::qt
