// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "alerting/ui/library_dialog.h"
#include "platform/ui/lists.h"

namespace alerting {

/// Adds, changes and removes modem types; each is stored at once.
class CManageModemTypesDlg : public CLibraryDialog {
 public:
  explicit CManageModemTypesDlg(ui::Window* parent);

 private:
  void OnInitDialog() override;
  void OnNew();
  void OnRemove();
  void OnProperties();
  void Refill(std::string_view select_name = {});
  void RefillKeepingSelection();
  void EnableButtons();

  ui::ListBox types_;
  ui::Button new_, remove_, properties_, close_;
};

}  // namespace alerting
