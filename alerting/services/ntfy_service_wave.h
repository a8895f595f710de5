// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/file_base.h"
#include "alerting/services/specific_record.h"

namespace alerting {

/// Wave File: plays a sound on a workstation.
class CNtfyServiceWave final : public SpecificRecord<ALRTWAVESERVICEREC, CNtfyServiceFileBase> {
 public:
  explicit CNtfyServiceWave(const GUID& id) : SpecificRecord(id, kTypeWave) {}

 protected:
  int NoFileMessageId() const override { return kIdsNoWaveInResponse; }
};

}  // namespace alerting
