// SPDX-License-Identifier: MIT
#include "alerting/telephony/modem_dialog.h"

#include "alerting/frame/messages.h"
#include "alerting/managers/alert_managers.h"
#include "alerting/telephony/modem_advanced_dlg.h"
#include "alerting/telephony/modem_lists.h"

namespace alerting {
namespace {

enum ControlId {
  kIdType = 100,
  kIdAdvanced,
  kIdMachine,
  kIdPort,
  kIdBaud,
  kIdComment,
  kIdEnable,
  kIdDirect,
  kIdOnline,
  kIdAlpha,
  kIdNumeric,
  kIdVoice
};

// What a modem can do. Direct port I/O stands alone.
constexpr std::uint32_t kCapNumericPager = 1, kCapAlphaPager = 2, kCapOnlineService = 4, kCapVoice = 8,
                        kCapDirectPort = 16;
constexpr std::uint32_t kCapDialing = kCapNumericPager | kCapAlphaPager | kCapOnlineService | kCapVoice;

}  // namespace

CModemDialog::CModemDialog(ui::Window* parent, std::string caption, ctxhelp::HelpPage help_page,
                           ModemStoreOf store, const GUID& modem, std::string direct_label)
    : CPropertiesDialog(parent, std::move(caption), help_page),
      store_(store),
      id_(modem),
      type_(*this, kIdType, "&Type:", true),
      advanced_(*this, kIdAdvanced, "Ad&vanced"),
      machine_(*this, kIdMachine, "&Machine:", true),
      port_(*this, kIdPort, "&Port:"),
      baud_(*this, kIdBaud, "&Baud rate:"),
      comment_(*this, kIdComment, "&Comment:"),
      enabled_(*this, kIdEnable, "&Enable"),
      direct_(*this, kIdDirect, std::move(direct_label)),
      online_(*this, kIdOnline, "&Online Service"),
      alpha_(*this, kIdAlpha, "A&lpha Pager"),
      numeric_(*this, kIdNumeric, "&Numeric Pager"),
      voice_(*this, kIdVoice, "&Voice") {
  voice_.Show(false);
  advanced_.SetOnClick([this] { OnAdvanced(); });
  direct_.SetOnChange([this] { OnDirectPort(); });
}

ui::LayoutNode CModemDialog::Fields() {
  return ui::Column({ui::Row({ui::Field(type_), ui::Bare(advanced_)}), ui::Field(machine_),
                     ui::Row({ui::Field(port_), ui::Field(baud_)}), ui::Field(comment_),
                     ui::Row({ui::Bare(enabled_), ui::Bare(direct_), ui::Bare(online_), ui::Stretch()}),
                     ui::Row({ui::Bare(alpha_), ui::Bare(numeric_), ui::Bare(voice_), ui::Stretch()})});
}

void CModemDialog::OnInitDialog() {
  comment_.SetLimit(decltype(ALRTSERV_MODEM::comment)::kMaxLength);
  if (FindModemOrFirst(store_, id_, working_))
    Show(working_);
  else
    ShowMessage(kIdsNoModems, this);
  CPropertiesDialog::OnInitDialog();
}

void CModemDialog::Show(const ALRTSERV_MODEM& modem) {
  comment_text_ = modem.comment.View();
  const bool is_direct = (modem.capabilities & kCapDirectPort) != 0;
  capabilities_ = is_direct ? kCapDirectPort : modem.capabilities & kCapDialing;
  enabled_value_ = modem.enabled != 0;
  port_number_ = modem.comPort;
  baud_rate_ = modem.baudRate;
  FillBaudRateCombo(baud_, modem.baudRate);
  ShowLocation(modem);
  FillComPortCombo(port_, modem.comPort);
  FillAlertManagerCombo(machine_, modem.managerGuid);
  ShowType(modem);
  if (is_direct) EnableOtherCapabilities();
}

void CModemDialog::Exchange(ui::DataExchange& x) {
  x.Item(port_, port_number_);
  x.Item(baud_, baud_rate_);
  x.Text(comment_, comment_text_);
  x.Check(enabled_, enabled_value_);
  x.Bits(direct_, capabilities_, kCapDirectPort);
  x.Bits(online_, capabilities_, kCapOnlineService);
  x.Bits(alpha_, capabilities_, kCapAlphaPager);
  x.Bits(numeric_, capabilities_, kCapNumericPager);
  x.Bits(voice_, capabilities_, kCapVoice);
}

void CModemDialog::OnDirectPort() {
  for (ui::CheckBox* box : {&alpha_, &numeric_, &online_, &voice_}) box->SetChecked(false);
  capabilities_ = direct_.Checked() ? kCapDirectPort : 0;
  EnableOtherCapabilities();
}

void CModemDialog::EnableOtherCapabilities() {
  for (ui::CheckBox* box : {&alpha_, &numeric_, &online_, &voice_})
    box->Enable(capabilities_ != kCapDirectPort);
}

void CModemDialog::OnAdvanced() {
  if (CModemAdvancedDlg(this, working_).RunModal() == ui::kOk) SetDirty(true);
}

// Name and identity belong together: without an alert manager the record has neither.
bool CModemDialog::TakeManager() {
  GUID manager{};
  if (!FindAlertManagerByName(machine_.Text().c_str(), manager) && !AcceptWithoutManager()) return false;
  working_.managerGuid = manager;
  working_.managerName.Assign(machine_.Text());
  return true;
}

// A choice that is absent leaves the record as it is.
void CModemDialog::TakeFields() {
  const bool is_direct = (capabilities_ & kCapDirectPort) != 0;
  working_.capabilities = is_direct ? kCapDirectPort : capabilities_;
  working_.enabled = enabled_value_ ? 1 : 0;
  working_.comment.Assign(comment_text_);
  if (baud_rate_) working_.baudRate = static_cast<std::uint32_t>(*baud_rate_);
  if (port_number_) working_.comPort = static_cast<std::uint32_t>(*port_number_);
}

bool CModemDialog::Save() {
  if (!UpdateData(true) || !TakeOwn(working_) || !TakeManager()) return false;
  TakeFields();
  return UpdateModem(store_, working_);
}

}  // namespace alerting
