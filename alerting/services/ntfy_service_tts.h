// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/specific_record.h"

namespace alerting {

/// Text to Speech: speaks on a workstation. Without users.
class CNtfyServiceTTS final : public SpecificRecord<ALRTTTSSERVICEREC, CNtfyServiceUserBase> {
 public:
  explicit CNtfyServiceTTS(const GUID& id) : SpecificRecord(id, kTypeTts) {}

  bool IsUserConfigured(const GUID&) override { return false; }
};

}  // namespace alerting
