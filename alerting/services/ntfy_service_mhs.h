// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/specific_record.h"
#include "alerting/services/user_entries.h"

namespace alerting {

/// MHS Mail: a directory on a mail server.
class CNtfyServiceMHS final
    : public MailUsers<CAlertUSR_MHSDB, SpecificRecord<ALRTMHSSERVICEREC, CNtfyServiceMailBase>> {
 public:
  explicit CNtfyServiceMHS(const GUID& id) : MailUsers(id, kTypeMhs) {}
};

}  // namespace alerting
