// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/specific_record.h"
#include "alerting/services/user_entries.h"

namespace alerting {

/// cc:Mail: a login.
class CNtfyServiceVIM final
    : public MailUsers<CAlertUSR_CCMAILDB, SpecificRecord<ALRTCCMAILSERVICEREC, CNtfyServiceMailBase>> {
 public:
  explicit CNtfyServiceVIM(const GUID& id) : MailUsers(id, kTypeVim) {}
};

}  // namespace alerting
