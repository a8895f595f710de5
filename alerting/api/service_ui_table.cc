// SPDX-License-Identifier: MIT
#include "alerting/api/service_ui_table.h"

#include "alerting/services/service_ui.h"
#include "alerting/sheets/service_sheets.h"
#include "alerting/telephony/set_pager_provider_dlg.h"

namespace alerting {

void InstallServiceUiTable() {
  ServiceUiTable table{};
  table[kTypeMhs].property_sheet = RunSheet<CSheetServiceMHS>;
  table[kTypeSnmp].property_sheet = RunSheet<CSheetServiceSNMP>;
  table[kTypeMci].property_sheet = RunSheet<CSheetServiceMCI>;
  table[kTypeCompuServe].property_sheet = RunSheet<CSheetServiceCIS>;
  table[kTypeSmtp].property_sheet = RunSheet<CSheetServiceSMTP>;
  table[kTypeMapi].property_sheet = RunSheet<CSheetServiceMAPI>;
  table[kTypeVim].property_sheet = RunSheet<CSheetServiceVIM>;
  table[kTypeWave].property_sheet = RunSheet<CSheetServiceWave>;
  table[kTypeTts].property_sheet = RunSheet<CSheetServiceTTS>;
  table[kTypeAlpha].property_sheet = RunSheet<CSheetServiceAlpha>;
  table[kTypeAlpha].choose_provider = RunSetPagerProvider;
  table[kTypeNumeric].property_sheet = RunSheet<CSheetServiceNum>;
  table[kTypeGeneric].property_sheet = RunSheet<CSheetServiceGeneric>;
  table[kTypeProgram].property_sheet = RunSheet<CSheetServiceProg>;
  for (const TypeCode code : {kTypeMci, kTypeCompuServe, kTypeAlpha, kTypeNumeric, kTypeGeneric})
    table[code].backup_modem_sheet = RunSheet<CSheetServiceModem>;
  SetServiceUiTable(table);
}

}  // namespace alerting
