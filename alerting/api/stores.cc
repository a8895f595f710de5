// SPDX-License-Identifier: MIT
// Opening and closing the record stores for the host.
#include "alerting/alerting.h"
#include "alerting/api/call.h"
#include "alerting/frame/app.h"

extern "C" {

std::uint32_t OpenDBs() {
  return alerting::Call(alerting::kStoresFailed, [] { return alerting::TheApp().OpenStores(); });
}

std::uint32_t CloseDBs() {
  return alerting::Call<std::uint32_t>(1, [] {
    alerting::TheApp().CloseStores();
    return 1;
  });
}

}  // extern "C"
