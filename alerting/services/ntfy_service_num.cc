// SPDX-License-Identifier: MIT
#include "alerting/services/ntfy_service_num.h"

namespace alerting {

bool CNtfyServiceNum::ReinitializeResponse(ALERTRESPREC& response) const {
  const bool retargeted = CNtfyService::ReinitializeResponse(response);
  response.message.Assign("");
  return retargeted;
}

}  // namespace alerting
