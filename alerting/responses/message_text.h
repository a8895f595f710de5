// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/services/ntfy_service.h"

namespace alerting {

/// What stands over a message with fields.
inline constexpr char kEditMessageHint[] =
    "You can edit the message which will be sent to the alert recipient. To add fields from the Event Log to "
    "the message, click Fields.";

/// What stands over a message of digits.
inline constexpr char kNumericMessageHint[] =
    "Enter a numeric message using numbers 0-9, *, and #.   Example: *911*";

/// A message as shown, broken into lines where the service's lines have a width.
std::string WrapForService(const CNtfyService& service, const std::string& shown);

}  // namespace alerting
