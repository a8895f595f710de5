// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "companions/alertstore/status.h"
#include "platform/base/guid.h"

namespace agentui {

/// The names of the alert managers on which a service is enabled, each once, the backup last. On failure, whose status
/// is the answer, `names` stays as it was.
alertstore::Status ReadDeliveringManagers(const platform::GUID& service, std::vector<std::string>& names);

}  // namespace agentui
