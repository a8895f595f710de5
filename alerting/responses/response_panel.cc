// SPDX-License-Identifier: MIT
#include "alerting/responses/response_panel.h"

namespace alerting {

bool CResponsePanel::UpdatePanelData() {
  if (response_ == nullptr || !Initialised()) return false;
  UpdateData(true);
  WriteResponse(*response_);
  return true;
}

}  // namespace alerting
