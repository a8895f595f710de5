// SPDX-License-Identifier: MIT
#include "alerting/api/load.h"

#include "alerting/api/service_ui_table.h"
#include "alerting/frame/app.h"
#include "alerting/frame/companions.h"
#include "alerting/frame/strings.h"
#include "alerting/managers/enabled_services.h"
#include "alerting/responses/keywords.h"
#include "alerting/services/service_list.h"
#include "alerting/services/types.h"
#include "alerting/testing/sends.h"

namespace alerting {

bool Load() {
  // The process-wide objects first, so that they outlive whoever calls Unload at the end of the process.
  TheCompanions();
  TheStores();
  TheServices() = CNtfyServiceList();
  TheEnabledServices();
  BuildServiceTypeNames();
  BuildKeywordTable(TheModule());
  InstallServiceUiTable();
  return TheApp().InitInstance([] { TheServices().RemoveAll(); });
}

void Unload() {
  ForgetTests();
  TheApp().ExitInstance();
  FreeServiceTypeNames();
}

}  // namespace alerting
