// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/modem_record.h"
#include "alerting/services/user_entries.h"

namespace alerting {

/// Numeric Pager: dials a pager and sends digits.
class CNtfyServiceNum final
    : public UserEntries<CAlertUSR_NPAGEDB, ModemRecord<ALRTNPAGESERVICEREC, CNtfyServiceUserBase>> {
 public:
  explicit CNtfyServiceNum(const GUID& id) : UserEntries(id, kTypeNumeric) {}

  /// Empties the message in every case: digits are never what another service's message holds.
  bool ReinitializeResponse(ALERTRESPREC& response) const override;
};

}  // namespace alerting
