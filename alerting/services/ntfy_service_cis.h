// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/modem_record.h"
#include "alerting/services/user_entries.h"

namespace alerting {

/// CompuServe Mail: an online service reached by modem.
class CNtfyServiceCIS final
    : public MailUsers<CAlertUSR_COMPUDB, ModemRecord<ALRTCOMPUSSERVICEREC, CNtfyServiceMailBase>> {
 public:
  explicit CNtfyServiceCIS(const GUID& id) : MailUsers(id, kTypeCompuServe) {}
};

}  // namespace alerting
