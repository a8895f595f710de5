// SPDX-License-Identifier: MIT
#include "companions/agentui/recent_dialog.h"

#include "companions/ctxhelp/ctxhelp.h"

namespace agentui {
namespace {

namespace ui = platform::ui;

constexpr int kIdList = 100;
constexpr int kIdEmpty = 101;

}  // namespace

RecentDialog::RecentDialog(ui::Window* parent, std::string caption, std::vector<std::string> entries,
                           std::string empty_text)
    : Dialog(parent, std::move(caption)),
      entries_(std::move(entries)),
      empty_(*this, kIdEmpty, std::move(empty_text)),
      list_(*this, kIdList, "&Used lately, newest first:"),
      buttons_(*this) {
  SetLayout(ui::Column({ui::Bare(empty_), ui::Over(list_), buttons_.Row()}));
  empty_.Show(entries_.empty());
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
  ctxhelp::MakeContextHelp()->QEVDlgOnContextHelp(*this, event,
                                                  ctxhelp::HelpTableOf(*this, ctxhelp::kHelpRecent).data());
}

void RecentDialog::UpdateOk() { buttons_.ok.Enable(list_.Current() >= 0); }

}  // namespace agentui
