// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/ntfy_service.h"
#include "platform/ui/property_sheet.h"

namespace alerting {

/// A user's entry on a service. Its pages are the panels that the service makes for its users; a service without any gets a
/// sheet without pages. What a panel applied stays when the sheet is cancelled.
class CSheetUserProp : public ui::PropertySheet {
 public:
  using PropertySheet::PropertySheet;

 protected:
  void OnCreated() override { SetHelpButton(true); }
};

/// Runs the sheet: ui::kOk or ui::kCancel.
int RunUserSheet(CNtfyService& service, const GUID& user, ui::Window* parent);

}  // namespace alerting
