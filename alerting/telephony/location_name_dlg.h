// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/ui/library_dialog.h"
#include "platform/ui/edit.h"

namespace alerting {

/// Asks for the name of a new location and stores nothing.
class CLocationNameDlg : public CLibraryDialog {
 public:
  explicit CLocationNameDlg(ui::Window* parent);

  /// What was entered; "" unless the dialog ended with OK.
  const std::string& Name() const { return name_; }

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override { x.Text(field_, name_); }

  std::string name_;
  ui::Edit field_;
  ui::OkCancelButtons buttons_;
};

}  // namespace alerting
