// SPDX-License-Identifier: MIT
#include "alerting/responses/choose_keyword_dlg.h"

#include "alerting/frame/companions.h"
#include "alerting/responses/keywords.h"
#include "companions/ctxhelp/topics.h"

namespace alerting {
namespace {

constexpr int kIdList = 100;

constexpr ctxhelp::HelpPair kHelp[] = {{ctxhelp::kFormItself, ctxhelp::kTopicChooseKeyword},
                                       {kIdList, ctxhelp::kTopicChooseKeywordList},
                                       {ui::kIdOk, ctxhelp::kTopicChooseKeywordOk},
                                       {ui::kIdCancel, ctxhelp::kTopicChooseKeywordCancel},
                                       ctxhelp::kEndOfHelpTable};

}  // namespace

CChooseKeywordDlg::CChooseKeywordDlg(ui::Window* parent)
    : Dialog(parent, "Choose Keyword"),
      list_(*this, kIdList, "&Keywords:"),
      ok_(*this, ui::kIdOk, "OK"),
      cancel_(*this, ui::kIdCancel, "Cancel") {
  SetLayout(ui::Column({ui::Over(list_), ui::Row({ui::Stretch(), ui::Field(ok_), ui::Field(cancel_)})}));
  ok_.SetDefault(true);
  ok_.SetOnClick([this] { OnOk(); });
  cancel_.SetOnClick([this] { OnCancel(); });
  list_.SetOnDoubleClick([this] { OnOk(); });
}

void CChooseKeywordDlg::OnInitDialog() {
  FillKeywordList(list_);
  list_.Select(0);
  Dialog::OnInitDialog();
}

void CChooseKeywordDlg::OnOk() {
  chosen_ = list_.ItemText(list_.Current());
  EndDialog(ui::kOk);
}

void CChooseKeywordDlg::OnHelp(const ui::HelpEvent& event) {
  TheCompanions().ctxhelp->QEVDlgOnContextHelp(*this, event, kHelp);
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
