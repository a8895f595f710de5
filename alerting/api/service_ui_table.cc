// SPDX-License-Identifier: MIT
#include "alerting/api/service_ui_table.h"

#include "alerting/responses/file_panels.h"
#include "alerting/responses/message_panels.h"
#include "alerting/responses/user_panels.h"
#include "alerting/services/service_ui.h"
#include "alerting/sheets/service_sheets.h"
#include "alerting/telephony/set_pager_provider_dlg.h"
#include "alerting/testing/tests.h"

namespace alerting {
namespace {

template <class Panel>
CAlertPage* NewResponsePanel(CNtfyService& service, ALERTRESPREC* response, std::uint32_t buttons) {
  return new Panel(service, response, buttons);
}

CAlertPage* NewWavePanel(CNtfyService&, ALERTRESPREC* response, std::uint32_t buttons) {
  return new CWizardPageWaveAddResp(response, buttons);
}

// The service is of the class that the table's row is for.
template <class Panel, class Service, auto... more>
CAlertPage* NewUserPanel(CNtfyService& service, const GUID& user, std::uint32_t buttons) {
  return new Panel(static_cast<Service&>(service), user, buttons, more...);
}

/// What all mail services have alike.
ServiceUi MailUi() {
  ServiceUi ui;
  ui.response_panel = NewResponsePanel<CWizardPageMailAddResp>;
  ui.user_panel = NewUserPanel<CWizardPageMailUser, CNtfyServiceMailBase>;
  ui.select_user = SelectUserOf;
  ui.site_test = RunMailTest;
  ui.user_test = RunMailUserTest;
  ui.send_test = SendStandardTest;
  return ui;
}

ServiceUi MessageUi(bool (*site_test)(CNtfyService&, ui::Window*)) {
  ServiceUi ui;
  ui.response_panel = NewResponsePanel<CWizardPageHalfAddResp>;
  ui.site_test = site_test;
  ui.send_test = SendComputerTest;
  return ui;
}

template <bool pin_mode>
ServiceUi PagerUi() {
  ServiceUi ui;
  ui.user_panel = NewUserPanel<CWizardPageNumAddUser, CNtfyServiceUserBase, pin_mode>;
  ui.select_user = SelectUserOf;
  ui.send_test = SendStandardTest;
  return ui;
}

ServiceUi AlphaUi() {
  ServiceUi ui = PagerUi<true>();
  ui.response_panel = NewResponsePanel<CWizardPageHalfAddResp>;
  ui.site_test = RunMessageTest<kAlphaTest>;
  ui.user_test = RunMessageUserTest<kAlphaUserTest>;
  ui.choose_provider = RunSetPagerProvider;
  return ui;
}

ServiceUi NumericUi() {
  ServiceUi ui = PagerUi<false>();
  ui.response_panel = NewResponsePanel<CWizardPageNumAddResp>;
  ui.site_test = RunMessageTest<kNumericTest>;
  ui.user_test = RunMessageUserTest<kNumericUserTest>;
  return ui;
}

ServiceUi FileUi(CAlertPage* (*panel)(CNtfyService&, ALERTRESPREC*, std::uint32_t),
                 bool (*site_test)(CNtfyService&, ui::Window*)) {
  ServiceUi ui;
  ui.response_panel = panel;
  ui.site_test = site_test;
  ui.send_test = SendStandardTest;
  return ui;
}

}  // namespace

void InstallServiceUiTable() {
  ServiceUiTable table{};
  for (const TypeCode code : {kTypeMhs, kTypeMci, kTypeCompuServe, kTypeSmtp, kTypeMapi, kTypeVim})
    table[code] = MailUi();
  table[kTypeMci].user_panel = NewUserPanel<CWizardPageMailAddUser, CNtfyServiceMailBase>;
  table[kTypeSnmp] = table[kTypeGeneric] = MessageUi(RunMessageTest<kPlainTest>);
  table[kTypeTts] = MessageUi(RunMessageTest<kSpeechTest>);
  table[kTypeAlpha] = AlphaUi();
  table[kTypeNumeric] = NumericUi();
  table[kTypeWave] = FileUi(NewWavePanel, RunFileTest<CWaveTestDlg>);
  table[kTypeProgram] = FileUi(NewResponsePanel<CWizardPageProgAddResp>, RunFileTest<CProgramTestDlg>);

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
  table[kTypeNumeric].property_sheet = RunSheet<CSheetServiceNum>;
  table[kTypeGeneric].property_sheet = RunSheet<CSheetServiceGeneric>;
  table[kTypeProgram].property_sheet = RunSheet<CSheetServiceProg>;
  for (const TypeCode code : {kTypeMci, kTypeCompuServe, kTypeAlpha, kTypeNumeric, kTypeGeneric})
    table[code].backup_modem_sheet = RunSheet<CSheetServiceModem>;
  SetServiceUiTable(table);
}

}  // namespace alerting
