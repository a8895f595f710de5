// SPDX-License-Identifier: MIT
#include "alerting/sheets/service_sheets.h"

namespace alerting {

CSheetServiceAlpha::CSheetServiceAlpha(CNtfyService& service, std::string caption, ui::Window* parent,
                                       int selected_page)
    : SheetOf(service, std::move(caption), parent, selected_page) {
  PageOf<CPropPgModem>().SetPagerMode();
}

// What kind of service it is, the record says that was just read.
CSheetServiceModem::CSheetServiceModem(CNtfyService& service, std::string caption, ui::Window* parent,
                                       int selected_page)
    : SheetOf(service, std::move(caption), parent, selected_page) {
  PageOf<CPropPgModem>().SetBackupLink();
  if (service.Common().recordType == RecordTypeOf(kTypeAlpha)) PageOf<CPropPgModem>().SetPagerMode();
}

}  // namespace alerting
