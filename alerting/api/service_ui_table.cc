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

constexpr ServiceUi kMailUi{.response_panel = NewResponsePanel<CWizardPageMailAddResp>,
                            .user_panel = NewUserPanel<CWizardPageMailUser, CNtfyServiceMailBase>,
                            .site_test = RunMailTest,
                            .user_test = RunMailUserTest,
                            .select_user = SelectUserOf,
                            .send_test = SendStandardTest};
constexpr ServiceUi kPlainUi{.response_panel = NewResponsePanel<CWizardPageHalfAddResp>,
                             .site_test = RunMessageTest<kPlainTest>,
                             .send_test = SendComputerTest};
constexpr ServiceUi kSpeechUi{.response_panel = NewResponsePanel<CWizardPageHalfAddResp>,
                              .site_test = RunMessageTest<kSpeechTest>,
                              .send_test = SendComputerTest};
constexpr ServiceUi kAlphaUi{.response_panel = NewResponsePanel<CWizardPageHalfAddResp>,
                             .user_panel = NewUserPanel<CWizardPageNumAddUser, CNtfyServiceUserBase, true>,
                             .site_test = RunMessageTest<kAlphaTest>,
                             .user_test = RunMessageUserTest<kAlphaUserTest>,
                             .select_user = SelectUserOf,
                             .send_test = SendStandardTest,
                             .choose_provider = RunSetPagerProvider};
constexpr ServiceUi kNumericUi{.response_panel = NewResponsePanel<CWizardPageNumAddResp>,
                               .user_panel = NewUserPanel<CWizardPageNumAddUser, CNtfyServiceUserBase, false>,
                               .site_test = RunMessageTest<kNumericTest>,
                               .user_test = RunMessageUserTest<kNumericUserTest>,
                               .select_user = SelectUserOf,
                               .send_test = SendStandardTest};
constexpr ServiceUi kWaveUi{
    .response_panel = NewWavePanel, .site_test = RunFileTest<CWaveTestDlg>, .send_test = SendStandardTest};
constexpr ServiceUi kProgramUi{.response_panel = NewResponsePanel<CWizardPageProgAddResp>,
                               .site_test = RunFileTest<CProgramTestDlg>,
                               .send_test = SendStandardTest};

}  // namespace

void InstallServiceUiTable() {
  ServiceUiTable table{};
  for (const TypeCode code : {kTypeMhs, kTypeMci, kTypeCompuServe, kTypeSmtp, kTypeMapi, kTypeVim})
    table[code] = kMailUi;
  table[kTypeMci].user_panel = NewUserPanel<CWizardPageMailAddUser, CNtfyServiceMailBase>;
  table[kTypeSnmp] = table[kTypeGeneric] = kPlainUi;
  table[kTypeTts] = kSpeechUi;
  table[kTypeAlpha] = kAlphaUi;
  table[kTypeNumeric] = kNumericUi;
  table[kTypeWave] = kWaveUi;
  table[kTypeProgram] = kProgramUi;

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
