// SPDX-License-Identifier: MIT
#include "companions/agentui/recent_dialog.h"

#include "companions/ctxhelp/ctxhelp.h"
#include "companions/ctxhelp/topics.h"

namespace agentui {
namespace {

namespace ui = platform::ui;

constexpr int kIdList = 100;
constexpr int kIdEmpty = 101;

constexpr ctxhelp::HelpPair kHelp[] = {{ctxhelp::kFormItself, ctxhelp::kTopicRecent},
                                       {kIdList, ctxhelp::kTopicRecentList},
                                       {ui::kIdOk, ctxhelp::kTopicRecentOk},
                                       {ui::kIdCancel, ctxhelp::kTopicRecentCancel},
                                       ctxhelp::kEndOfHelpTable};

}  // namespace

RecentDialog::RecentDialog(ui::Window* parent, std::string caption, std::vector<std::string> entries,
                           std::string empty_text)
    : Dialog(parent, std::move(caption)),
      entries_(std::move(entries)),
      empty_(*this, kIdEmpty, std::move(empty_text)),
      list_(*this, kIdList, "&Used lately, newest first:"),
      ok_(*this, ui::kIdOk, "OK"),
      cancel_(*this, ui::kIdCancel, "Cancel") {
  SetLayout(ui::Column(
      {ui::Bare(empty_), ui::Over(list_), ui::Row({ui::Stretch(), ui::Field(ok_), ui::Field(cancel_)})}));
  empty_.Show(entries_.empty());
  ok_.SetDefault(true);
  ok_.SetOnClick([this] { OnOk(); });
  cancel_.SetOnClick([this] { OnCancel(); });
  list_.SetOnChange([this] { UpdateOk(); });
  list_.SetOnDoubleClick([this] { OnOk(); });
}

void RecentDialog::OnInitDialog() {
  for (const std::string& entry : entries_) list_.Add(entry);
  if (!entries_.empty()) list_.Select(0);
  UpdateOk();
  Dialog::OnInitDialog();
}

void RecentDialog::OnOk() {
  chosen_ = list_.ItemText(list_.Current());
  EndDialog(ui::kOk);
}

void RecentDialog::OnHelp(const ui::HelpEvent& event) {
  ctxhelp::MakeContextHelp()->QEVDlgOnContextHelp(*this, event, kHelp);
}

void RecentDialog::UpdateOk() { ok_.Enable(list_.Current() >= 0); }

}  // namespace agentui
