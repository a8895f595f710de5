// SPDX-License-Identifier: MIT
#include "platform/ui/dialog.h"

namespace platform::ui {

void Dialog::OnOk() {
  if (UpdateData(true)) EndDialog(kOk);
}

void Dialog::OnCancel() { EndDialog(kCancel); }

}  // namespace platform::ui
