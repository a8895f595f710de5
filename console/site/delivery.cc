// SPDX-License-Identifier: MIT
#include "console/site/delivery.h"

#include "companions/alertstore/selectors.h"
#include "companions/alertstore/stores.h"
#include "console/site/walk.h"

namespace site {
namespace {

/// How many notes say of managers that they deliver the service. False when they cannot be read.
bool CountNotes(const platform::GUID& service, int& count) {
  alertstore::CAlertSERV_INST_NTFY_SERVDB store;
  count = 0;
  const auto note = [&](const auto&) {
    ++count;
    return alertstore::kOk;
  };
  return Walk(store, alertstore::kEnabledServiceByService, note, service) == alertstore::kOk;
}

}  // namespace

bool StopDelivering(const LibraryCalls& calls, int index, const platform::GUID& service) {
  int notes = 0;
  if (!CountNotes(service, notes)) return false;
  for (; notes > 0; --notes) calls.DomainServiceServerEnable(index, platform::kNullGuid, 0);
  return CountNotes(service, notes) && notes == 0;
}

bool DeliverThrough(const LibraryCalls& calls, int index, const platform::GUID& service,
                    const platform::GUID& manager) {
  int notes = 0;
  if (!StopDelivering(calls, index, service)) return false;
  calls.DomainServiceServerEnable(index, manager, 1);
  return CountNotes(service, notes) && notes > 0;
}

}  // namespace site
