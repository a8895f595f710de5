// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/ui/filtered_edit.h"
#include "alerting/ui/library_dialog.h"

namespace alerting {

/// Edits three dialing rules that its caller keeps. OK copies each whole text back; a rule may be of any length, so the
/// buffers must have room for what a person enters. A null buffer is a rule that the caller does not want.
class CDialingRulesDlg : public CLibraryDialog {
 public:
  CDialingRulesDlg(ui::Window* parent, char* same_area, char* long_distance, char* international);

 private:
  struct Rule {
    char* buffer;
    CFilteredEdit field;
  };

  void OnInitDialog() override;
  void OnOk() override;

  Rule same_area_, long_distance_, international_;
  ui::OkCancelButtons buttons_;
};

}  // namespace alerting
