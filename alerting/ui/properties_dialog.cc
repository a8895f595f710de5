// SPDX-License-Identifier: MIT
#include "alerting/ui/properties_dialog.h"

namespace alerting {

CPropertiesButtons::CPropertiesButtons(CPropertiesDialog& dialog)
    : OkCancelButtons(dialog), apply(dialog, kIdApply, "&Apply") {
  dialog.apply_ = &apply;
  apply.SetOnClick([&dialog] { dialog.SaveIfDirty(); });
}

void CPropertiesDialog::SetDirty(bool dirty) {
  dirty_ = dirty;
  if (apply_ != nullptr) apply_->Enable(dirty);
}

void CPropertiesDialog::OnInitDialog() {
  CLibraryDialog::OnInitDialog();
  SetDirty(false);
}

bool CPropertiesDialog::SaveIfDirty() {
  if (!dirty_) return true;
  if (!Save()) return false;
  SetDirty(false);
  return true;
}

void CPropertiesDialog::OnOk() {
  if (SaveIfDirty()) EndDialog(ui::kOk);
}

}  // namespace alerting
