// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/modem_record.h"

namespace alerting {

/// Generic Port: writes to a serial port. Without users.
class CNtfyServiceGeneric final : public ModemRecord<ALRTGENPORTSERVICEREC, CNtfyServiceUserBase> {
 public:
  explicit CNtfyServiceGeneric(const GUID& id) : ModemRecord(id, kTypeGeneric) {}

  bool IsUserConfigured(const GUID&) override { return false; }
};

}  // namespace alerting
