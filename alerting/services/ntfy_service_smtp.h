// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/specific_record.h"
#include "alerting/services/user_entries.h"

namespace alerting {

/// Internet Mail: a mail server.
class CNtfyServiceSMTP final
    : public MailUsers<CAlertUSR_SMTPDB, SpecificRecord<ALRTSMTPSERVICEREC, CNtfyServiceMailBase>> {
 public:
  explicit CNtfyServiceSMTP(const GUID& id) : MailUsers(id, kTypeSmtp) {}
};

}  // namespace alerting
