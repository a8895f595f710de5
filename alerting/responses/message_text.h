// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/services/ntfy_service.h"

namespace alerting {

/// A message as shown, broken into lines where the service's lines have a width.
std::string WrapForService(const CNtfyService& service, const std::string& shown);

}  // namespace alerting
