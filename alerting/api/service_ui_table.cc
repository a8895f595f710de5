// SPDX-License-Identifier: MIT
#include "alerting/api/service_ui_table.h"

#include "alerting/services/service_ui.h"
#include "alerting/sheets/sheet_service_smtp.h"

namespace alerting {

void InstallServiceUiTable() {
  ServiceUiTable table{};
  table[kTypeSmtp].property_sheet = RunSheetSMTP;
  SetServiceUiTable(table);
}

}  // namespace alerting
