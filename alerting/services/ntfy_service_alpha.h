// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/modem_record.h"
#include "alerting/services/user_entries.h"

namespace alerting {

/// Alphanumeric Pager: dials a paging provider and sends text.
class CNtfyServiceAlpha final
    : public UserEntries<CAlertUSR_APAGEDB, ModemRecord<ALRTAPAGESERVICEREC, CNtfyServiceUserBase,
                                                        RecordRules{.reports_error_code = false}>> {
 public:
  explicit CNtfyServiceAlpha(const GUID& id) : UserEntries(id, kTypeAlpha) {}

  /// What the chosen paging provider gave the service.
  struct ProviderFields {
    std::string company, location, phone;
    std::uint32_t textLength = 0;  ///< longest message in bytes
  };
  ProviderFields GetProviderFields() const;
  void SetProviderFields(const ProviderFields& fields);

  /// As long as the provider takes.
  int GetMaxMessageLength() const override;
  int GetIncompleteConfigMessageId() const override;
  /// A service without a provider is given one first; without one its sheet does not open.
  int PropertySheet(ui::Window* parent) override;
};

}  // namespace alerting
