// SPDX-License-Identifier: MIT
#include "companions/minibrowse/computer_dialog.h"

#include "companions/ctxhelp/ctxhelp.h"

namespace minibrowse {

namespace ui = platform::ui;

ComputerDialog::ComputerDialog(ui::Window* parent, std::vector<alertstore::Computer> computers,
                               std::string empty_text)
    : Dialog(parent, "Choose Computer"),
      computers_(std::move(computers)),
      empty_(*this, 101, std::move(empty_text)),
      list_(*this, 100, "&Computers of this site:", true),
      buttons_(*this) {
  SetLayout(ui::Column({ui::Bare(empty_), ui::Over(list_), buttons_.Row()}));
  empty_.Show(computers_.empty());
  list_.SetOnDoubleClick([this] { OnOk(); });
}

void ComputerDialog::OnInitDialog() {
  for (std::size_t i = 0; i < computers_.size(); ++i) list_.Add(computers_[i].name, i);
  if (!computers_.empty()) list_.Select(0);
  buttons_.ok.Enable(!computers_.empty());
  Dialog::OnInitDialog();
}

void ComputerDialog::OnOk() {
  if (list_.Current() < 0) return;
  chosen_ = computers_[list_.Data(list_.Current())].id;
  EndDialog(ui::kOk);
}

void ComputerDialog::OnHelp(const ui::HelpEvent& event) {
  ctxhelp::MakeContextHelp()->QEVDlgOnContextHelp(
      *this, event, ctxhelp::HelpTableOf(*this, ctxhelp::kHelpChooseComputer).data());
}

}  // namespace minibrowse
