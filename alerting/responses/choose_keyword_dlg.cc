// SPDX-License-Identifier: MIT
#include "alerting/responses/choose_keyword_dlg.h"

#include "alerting/responses/keywords.h"

namespace alerting {
namespace {

constexpr int kIdList = 100;

}  // namespace

CChooseKeywordDlg::CChooseKeywordDlg(ui::Window* parent)
    : CLibraryDialog(parent, "Choose Keyword", ctxhelp::kHelpChooseKeyword),
      list_(*this, kIdList, "&Keywords:"),
      buttons_(*this) {
  SetLayout(ui::Column({ui::Over(list_), buttons_.Row()}));
  list_.SetOnDoubleClick([this] { OnOk(); });
}

void CChooseKeywordDlg::OnInitDialog() {
  FillKeywordList(list_);
  list_.Select(0);
  CLibraryDialog::OnInitDialog();
}

void CChooseKeywordDlg::OnOk() {
  chosen_ = list_.ItemText(list_.Current());
  EndDialog(ui::kOk);
}

bool InsertChosenKeyword(ui::Edit& editor, std::string_view trail) {
  CChooseKeywordDlg dialog(&editor.OwnerForm());
  if (dialog.RunModal() != ui::kOk || dialog.Chosen().empty()) return false;
  // The focus first: with it the editor takes up the selection that the button's press took from it.
  editor.SetFocus();
  editor.ReplaceSelection(dialog.Chosen() + std::string(trail));
  editor.ScrollToCaret();
  return true;
}

}  // namespace alerting
