// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/specific_record.h"

namespace alerting {

/// SNMP Trap: the destinations are kept in the store of SNMP managers.
class CNtfyServiceSNMP final
    : public SpecificRecord<ALRTSNMPSERVICEREC, CNtfyService, RecordRules{.silent_load = true}> {
 public:
  explicit CNtfyServiceSNMP(const GUID& id) : SpecificRecord(id, kTypeSnmp) {}
};

}  // namespace alerting
