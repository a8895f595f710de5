// SPDX-License-Identifier: MIT
#pragma once

#include "companions/alertstore/records_common.h"
#include "console/site/library_calls.h"

namespace hosts {

/// Reads a stored response. False after telling why it cannot be read.
bool FetchResponse(const platform::GUID& id, alertstore::ALERTRESPREC& response);
/// Has the library check the response and writes it over the stored one. False after one of the two told why not.
bool StoreResponse(const site::LibraryCalls& calls, alertstore::ALERTRESPREC& response);

}  // namespace hosts
