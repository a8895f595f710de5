// SPDX-License-Identifier: MIT
#include "alerting/ui/library_dialog.h"

#include "alerting/frame/companions.h"

namespace alerting {

void CLibraryDialog::OnHelp(const ui::HelpEvent& event) {
  TheCompanions().ctxhelp->QEVDlgOnContextHelp(*this, event, ctxhelp::HelpTableOf(*this, help_page_).data());
}

}  // namespace alerting
