// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/specific_record.h"
#include "alerting/services/user_entries.h"

namespace alerting {

/// Microsoft Mail: a login or profile.
class CNtfyServiceMAPI final
    : public MailUsers<CAlertUSR_MAPIDB, SpecificRecord<ALRTMAPISERVICEREC, CNtfyServiceMailBase>> {
 public:
  explicit CNtfyServiceMAPI(const GUID& id) : MailUsers(id, kTypeMapi) {}
};

}  // namespace alerting
