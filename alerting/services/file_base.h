// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/ntfy_service.h"

namespace alerting {

/// The types whose responses name a file, in the response's subject: a sound or a program.
class CNtfyServiceFileBase : public CNtfyService {
 public:
  using CNtfyService::CNtfyService;

  /// Keeps the file name when the response moves between these types, and says so.
  bool ReinitializeResponse(ALERTRESPREC& response) const override;
  bool ValidateResponse(const ALERTRESPREC& response) const override;

 protected:
  /// The message for a response without a file name.
  virtual int NoFileMessageId() const = 0;
};

/// The types that launch something and have no record but the common one. Their class reads the records of
/// the program launch and of the script service.
class CNtfyServiceLaunchBase : public CNtfyServiceFileBase {
 public:
  using CNtfyServiceFileBase::CNtfyServiceFileBase;

  bool LoadSpecificRecord(CAlertNtfyServDB&) override { return true; }
  void* GetSpecificRecord() override { return nullptr; }
  bool ReloadRecords() override;
  bool SaveRecords() override;
  bool AddCopy(CAlertNtfyServDB& store, ALRTNTFYSERV& common, GUID& new_id) override;

  std::uint32_t GetEnabled() const { return Common().enabled; }
  void SetEnabled(std::uint32_t enabled) { Common().enabled = enabled; }

 private:
  ALRTNTFYSERV saved_common_{};
};

}  // namespace alerting
