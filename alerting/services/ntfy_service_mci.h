// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/modem_record.h"
#include "alerting/services/user_entries.h"

namespace alerting {

/// MCI Mail: an online service reached by modem, whose users may sit on another mail system (EMS).
class CNtfyServiceMCI final
    : public MailUsers<CAlertUSR_MCIDB, ModemRecord<ALRTMCISERVICEREC, CNtfyServiceMailBase>> {
 public:
  explicit CNtfyServiceMCI(const GUID& id) : MailUsers(id, kTypeMci) {}

  bool GetUserExtra(std::uint32_t& ems_enabled, std::string& ems_address, const GUID& user) override;
  bool SetUserExtra(std::uint32_t ems_enabled, const std::string& ems_address, const GUID& user) override;
};

}  // namespace alerting
