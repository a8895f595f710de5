// SPDX-License-Identifier: MIT
#include "alerting/sheets/sheet_service_smtp.h"

namespace alerting {

CSheetServiceSMTP::CSheetServiceSMTP(CNtfyService& service, std::string caption, ui::Window* parent,
                                     int selected_page)
    : CServiceSheet(std::move(caption), parent, selected_page) {
  Assemble(service, {&general_, &default_message_});
}

int RunSheetSMTP(CNtfyService& service, ui::Window* parent) {
  CSheetServiceSMTP sheet(service, service.Name(), parent, 0);
  return sheet.RunModal();
}

}  // namespace alerting
