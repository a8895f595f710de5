// SPDX-License-Identifier: MIT
#include "console/site/delivery.h"

#include "companions/alertstore/selectors.h"
#include "companions/alertstore/stores.h"
#include "console/site/walk.h"

namespace site {
namespace {

/// How many notes say of managers that they deliver the service; 0 where they cannot be read.
int CountNotes(const platform::GUID& service) {
  alertstore::CAlertSERV_INST_NTFY_SERVDB store;
  int count = 0;
  Walk(
      store, alertstore::kEnabledServiceByService,
      [&](const auto&) {
        ++count;
        return alertstore::kOk;
      },
      service);
  return count;
}

}  // namespace

bool StopDelivering(const LibraryCalls& calls, int index, const platform::GUID& service) {
  for (int left = CountNotes(service); left > 0; --left)
    calls.DomainServiceServerEnable(index, platform::kNullGuid, 0);
  return CountNotes(service) == 0;
}

bool DeliverThrough(const LibraryCalls& calls, int index, const platform::GUID& service,
                    const platform::GUID& manager) {
  if (!StopDelivering(calls, index, service)) return false;
  calls.DomainServiceServerEnable(index, manager, 1);
  return CountNotes(service) > 0;
}

}  // namespace site
