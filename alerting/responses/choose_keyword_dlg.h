// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "alerting/ui/library_dialog.h"
#include "platform/ui/edit.h"
#include "platform/ui/lists.h"

namespace alerting {

/// Lets a person choose one of the message keywords.
class CChooseKeywordDlg : public CLibraryDialog {
 public:
  explicit CChooseKeywordDlg(ui::Window* parent);

  /// The name of the chosen keyword; "" unless the dialog ended with OK.
  const std::string& Chosen() const { return chosen_; }

 private:
  void OnInitDialog() override;
  void OnOk() override;

  std::string chosen_;
  ui::ListBox list_;
  ui::OkCancelButtons buttons_;
};

/// What a "Fields" button does: has a keyword chosen, puts it and `trail` in place of the editor's selection,
/// and leaves the focus in the editor with the caret behind what was put in. Answers whether anything was;
/// the caller then marks its page as modified.
bool InsertChosenKeyword(ui::Edit& editor, std::string_view trail = " ");

}  // namespace alerting
