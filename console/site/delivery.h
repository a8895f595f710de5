// SPDX-License-Identifier: MIT
#pragma once

#include "console/site/library_calls.h"

// Which alert manager delivers a service. The library leaves a service with the manager that it has, and takes away one note
// of it at a time, whichever manager that names; notes of managers that are gone are in the way like others.

namespace site {

/// Takes the service at that index off every manager. False when the stores did not take the change.
bool StopDelivering(const LibraryCalls& calls, int index, const platform::GUID& service);
/// Has the manager, and no other, deliver it. False when the stores did not take the change.
bool DeliverThrough(const LibraryCalls& calls, int index, const platform::GUID& service,
                    const platform::GUID& manager);

}  // namespace site
