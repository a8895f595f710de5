// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <tuple>

#include "alerting/sheets/body_pages.h"
#include "alerting/sheets/enable_pages.h"
#include "alerting/sheets/mail_pages.h"
#include "alerting/sheets/page_default_message.h"
#include "alerting/sheets/page_mhs_general.h"
#include "alerting/sheets/page_modem.h"
#include "alerting/sheets/page_smtp_general.h"
#include "alerting/sheets/page_snmp_general.h"
#include "alerting/sheets/pager_pages.h"
#include "alerting/sheets/service_sheet.h"

// The property sheets of all types, each a list of its pages in tab order.

namespace alerting {

template <class... Page>
class SheetOf : public CServiceSheet {
 public:
  SheetOf(CNtfyService& service, std::string caption, ui::Window* parent, int selected_page)
      : CServiceSheet(std::move(caption), parent, selected_page) {
    std::apply([&](Page&... page) { Assemble(service, {&page...}); }, members_);
  }

 protected:
  template <class Wanted>
  Wanted& PageOf() {
    return std::get<Wanted>(members_);
  }

 private:
  std::tuple<Page...> members_;
};

/// Runs a sheet on a service, under the service's name: ui::kOk or ui::kCancel.
template <class Sheet>
int RunSheet(CNtfyService& service, ui::Window* parent) {
  return Sheet(service, service.Name(), parent, 0).RunModal();
}

// clang-format off
struct CSheetServiceMHS : SheetOf<CPropPgMHSGeneral, CPropPgDefaultMsg> { using SheetOf::SheetOf; };
struct CSheetServiceSNMP : SheetOf<CPropPgSNMPGeneral, CPropPgHalfDefaultMsg> { using SheetOf::SheetOf; };
struct CSheetServiceMCI : SheetOf<CPropPgMCIGeneral, CPropPgDefaultMsg, CPropPgModem> { using SheetOf::SheetOf; };
struct CSheetServiceCIS : SheetOf<CPropPgCISGeneral, CPropPgDefaultMsg, CPropPgModem> { using SheetOf::SheetOf; };
struct CSheetServiceSMTP : SheetOf<CPropPgSMTPGeneral, CPropPgDefaultMsg> { using SheetOf::SheetOf; };
struct CSheetServiceMAPI : SheetOf<CPropPgMAPIGeneral, CPropPgDefaultMsg> { using SheetOf::SheetOf; };
struct CSheetServiceVIM : SheetOf<CPropPgVIMGeneral, CPropPgDefaultMsg> { using SheetOf::SheetOf; };
struct CSheetServiceWave : SheetOf<CPropPgWaveGeneral> { using SheetOf::SheetOf; };
struct CSheetServiceTTS : SheetOf<CPropPgTTSGeneral, CPropPgHalfDefaultMsg> { using SheetOf::SheetOf; };
struct CSheetServiceNum : SheetOf<CPropPgNumericPageGeneral, CPropPgNumericPageDefMsg, CPropPgModem> { using SheetOf::SheetOf; };
struct CSheetServiceGeneric : SheetOf<CPropPgGenericGeneral, CPropPgHalfDefaultMsg, CPropPgModem> { using SheetOf::SheetOf; };
struct CSheetServiceProg : SheetOf<CPropPgProgGeneral> { using SheetOf::SheetOf; };
// clang-format on

struct CSheetServiceAlpha : SheetOf<CPropPgAlphaGeneral2, CPropPgHalfDefaultMsg, CPropPgModem> {
  CSheetServiceAlpha(CNtfyService& service, std::string caption, ui::Window* parent, int selected_page);
  /// Shows the line settings of a provider that was just chosen.
  void RefreshModemPage() { PageOf<CPropPgModem>().ReloadModemSettings(); }
};

/// Edits the backup modem link of a service of any type that dials.
struct CSheetServiceModem : SheetOf<CPropPgModem> {
  CSheetServiceModem(CNtfyService& service, std::string caption, ui::Window* parent, int selected_page);
};

}  // namespace alerting
