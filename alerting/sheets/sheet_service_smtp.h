// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/sheets/page_default_message.h"
#include "alerting/sheets/page_smtp_general.h"
#include "alerting/sheets/service_sheet.h"

namespace alerting {

/// Property sheet of an Internet Mail service.
class CSheetServiceSMTP : public CServiceSheet {
 public:
  CSheetServiceSMTP(CNtfyService& service, std::string caption, ui::Window* parent, int selected_page);

 private:
  CPropPgSMTPGeneral general_;
  CPropPgDefaultMsg default_message_;
};

/// Runs the sheet on an Internet Mail service, under the service's name: ui::kOk or ui::kCancel.
int RunSheetSMTP(CNtfyService& service, ui::Window* parent);

}  // namespace alerting
