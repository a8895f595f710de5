// SPDX-License-Identifier: MIT
#include "console/hosts/host_dialog.h"

#include "companions/ctxhelp/ctxhelp.h"
#include "platform/ui/message.h"

namespace hosts {

void ShowHelp(ui::Form& form, const ui::HelpEvent& event, ctxhelp::HelpPage page) {
  ctxhelp::MakeContextHelp()->QEVDlgOnContextHelp(form, event, ctxhelp::HelpTableOf(form, page).data());
}

void Tell(const std::string& text) { ui::MessageBox(text); }

bool Ask(const std::string& question) {
  return ui::MessageBox(question, ui::Buttons::kNoYes, ui::MessageIcon::kQuestion) == ui::Answer::kYes;
}

}  // namespace hosts
