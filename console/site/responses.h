// SPDX-License-Identifier: MIT
#pragma once

#include "companions/alertstore/records_common.h"
#include "companions/alertstore/status.h"

// Responses. The library fills and checks them; their records are the console's own.

namespace site {

/// Adds the response under a new identity, which is written into it.
alertstore::Status AddResponse(alertstore::ALERTRESPREC& response);
/// kNotFound for one that another console has removed meanwhile.
alertstore::Status UpdateResponse(const alertstore::ALERTRESPREC& response);
alertstore::Status RemoveResponse(const platform::GUID& id);
/// Reads the response with that identity; on failure `response` stays as it was.
alertstore::Status ReadResponse(const platform::GUID& id, alertstore::ALERTRESPREC& response);

/// Names the service that the response goes to. The rest of it is the library's affair.
void PointAt(const alertstore::ALRTNTFYSERV& service, alertstore::ALERTRESPREC& response);

}  // namespace site
