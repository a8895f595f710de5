// SPDX-License-Identifier: MIT
#include "alerting/api/service_ui_table.h"

#include "alerting/services/service_ui.h"

namespace alerting {

void InstallServiceUiTable() { SetServiceUiTable({}); }

}  // namespace alerting
