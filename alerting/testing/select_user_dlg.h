// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/services/ntfy_service.h"
#include "alerting/ui/library_dialog.h"
#include "platform/ui/lists.h"

namespace alerting {

/// Chooses one of a service's users. Ends at once, as cancelled, when the service cannot list them.
class CSelectUserDlg : public CLibraryDialog {
 public:
  /// The user of that name is chosen to begin with.
  CSelectUserDlg(ui::Window* parent, CNtfyService& service, std::string name);

  /// The user that was chosen with OK.
  const std::string& Name() const { return name_; }
  const GUID& User() const { return user_; }

 private:
  void OnInitDialog() override;
  void OnOk() override;
  void UpdateOk();

  CNtfyService& service_;
  std::string name_;
  GUID user_{};
  ui::ListBox list_;
  ui::OkCancelButtons buttons_;
};

/// Runs the dialog. On OK `name` and `user` become the chosen one's; else both stay as they are.
bool SelectUserOf(CNtfyService& service, ui::Window* parent, std::string& name, GUID& user);

}  // namespace alerting
