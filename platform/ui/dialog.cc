// SPDX-License-Identifier: MIT
#include "platform/ui/dialog.h"

namespace platform::ui {

void Dialog::OnOk() {
  if (UpdateData(true)) EndDialog(kOk);
}

void Dialog::OnCancel() { EndDialog(kCancel); }

OkCancelButtons::OkCancelButtons(Dialog& dialog)
    : ok(dialog, kIdOk, "OK"), cancel(dialog, kIdCancel, "Cancel") {
  ok.SetDefault(true);
  ok.SetOnClick([&dialog] { dialog.OnOk(); });
  cancel.SetOnClick([&dialog] { dialog.OnCancel(); });
}

}  // namespace platform::ui
