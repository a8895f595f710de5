// SPDX-License-Identifier: MIT
#include "alerting/ui/library_dialog.h"

#include "alerting/frame/companions.h"

namespace alerting {

void CLibraryDialog::OnHelp(const ui::HelpEvent& event) { ShowHelp(*this, event, help_page_); }

}  // namespace alerting
