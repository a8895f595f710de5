// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/ntfy_service.h"
#include "alerting/ui/library_dialog.h"
#include "platform/ui/lists.h"

namespace alerting {

/// Has a person choose the paging provider of an alphanumeric pager service. OK stores the provider's data at once, and
/// the caller then reads its service again: the record that it handed in is not changed.
class CSetPagerProviderDlg : public CLibraryDialog {
 public:
  /// `service`: the service's record, which stays the caller's; without one, OK adds a record of the provider's data.
  explicit CSetPagerProviderDlg(ui::Window* parent, const ALRTAPAGESERVICEREC* service = nullptr);

 private:
  void OnInitDialog() override;
  void OnOk() override;
  Status Store(const ALRTAPAGE_SERVICE_PROVIDER_REC& provider) const;

  const ALRTAPAGESERVICEREC* const service_;
  ui::ListBox list_;
  ui::OkCancelButtons buttons_;
};

/// Runs the dialog on the record of an alphanumeric pager service and answers its result.
int RunSetPagerProvider(CNtfyService& service, ui::Window* parent);

}  // namespace alerting
