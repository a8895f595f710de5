// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/frame/strings.h"
#include "alerting/services/file_base.h"

namespace alerting {

/// Program Launch: starts a program on a workstation or server.
class CNtfyServiceProg final : public CNtfyServiceLaunchBase {
 public:
  explicit CNtfyServiceProg(const GUID& id) : CNtfyServiceLaunchBase(id, kTypeProgram) {}

 protected:
  int NoFileMessageId() const override { return kIdsNoProgramInResponse; }
};

}  // namespace alerting
