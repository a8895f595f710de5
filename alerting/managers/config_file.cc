// SPDX-License-Identifier: MIT
#include "alerting/managers/config_file.h"

#include "alerting/frame/app.h"
#include "alerting/frame/companions.h"
#include "alerting/frame/messages.h"
#include "platform/ui/desktop.h"

namespace alerting {

void WriteAlertServerConfig() {
  EnsureStoresOpen();
  const platform::ui::WaitCursor wait;
  if (TheCompanions().dbconfig->CreateAlertServerConfigFile(0) != 0) ShowMessage(kIdsConfigFileFailed);
}

}  // namespace alerting
