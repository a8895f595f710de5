// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/services/ntfy_service.h"

namespace alerting {

/// What stands over a message with fields.
inline constexpr char kEditMessageHint[] =
    "You can edit the message which will be sent to the alert recipient. To add fields from the Event Log to "
    "the message, click Fields.";

/// A message as shown, broken into lines where the service's lines have a width.
std::string WrapForService(const CNtfyService& service, const std::string& shown);

}  // namespace alerting
