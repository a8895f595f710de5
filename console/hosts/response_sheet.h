// SPDX-License-Identifier: MIT
#pragma once

#include "companions/alertstore/records_common.h"
#include "console/site/library_calls.h"
#include "platform/ui/window.h"

namespace hosts {

/// Edits a response in the library's panels. Answers whether it was stored.
bool EditResponse(platform::ui::Window* parent, const site::LibraryCalls& calls,
                  const platform::GUID& response);

/// The same with a record that may differ from the stored one already; OK stores it whole.
bool RunResponseSheet(platform::ui::Window* parent, const site::LibraryCalls& calls,
                      alertstore::ALERTRESPREC& response);

}  // namespace hosts
