// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/ui/dialog.h"
#include "platform/ui/edit.h"
#include "platform/ui/lists.h"

namespace alerting {

namespace ui = platform::ui;

/// Lets a person choose one of the message keywords.
class CChooseKeywordDlg : public ui::Dialog {
 public:
  explicit CChooseKeywordDlg(ui::Window* parent);

  /// The name of the chosen keyword; "" unless the dialog ended with OK.
  const std::string& Chosen() const { return chosen_; }

 private:
  void OnInitDialog() override;
  void OnOk() override;
  void OnHelp(const ui::HelpEvent& event) override;

  std::string chosen_;
  ui::ListBox list_;
  ui::Button ok_, cancel_;
};

/// What a "Fields" button does: has a keyword chosen, puts it and `trail` in place of the editor's selection,
/// and leaves the focus in the editor with the caret behind what was put in. Answers whether anything was;
/// the caller then marks its page as modified.
bool InsertChosenKeyword(ui::Edit& editor, std::string_view trail = " ");

}  // namespace alerting
