// SPDX-License-Identifier: MIT
#include "alerting/responses/user_panels.h"

namespace alerting {
namespace {

constexpr char kHint[] =
    "Provide the notification service configuration information for the alert recipient.";
constexpr char kUserGroup[] = "Alert User Information";
constexpr std::size_t kMaxEmsAddress = 64, kMaxNumber = 25;

}  // namespace

CUserPanel::CUserPanel(ctxhelp::HelpPage help_page, CNtfyServiceUserBase& service, const GUID& user,
                       std::uint32_t wizard_buttons)
    : CPanel("General", help_page, wizard_buttons),
      service_field_(*this, kIdService, "Notification service:"),
      user_field_(*this, kIdUser, "User name:"),
      service_(service),
      user_(user) {
  service_field_.SetReadOnly(true);
  user_field_.SetReadOnly(true);
}

void CUserPanel::Bind(ui::Edit& address, ui::CheckBox& enable) {
  address_ = &address;
  enable_ = &enable;
  address.SetOnChange([this] { OnAddressChanged(); });
}

void CUserPanel::Arrange(const char* group, ui::LayoutNodes fields) {
  SetLayout(ui::Column({ui::Note(kHint), ui::Group(group, fields), ui::Stretch()}));
}

void CUserPanel::OnInitDialog() {
  service_name_ = service_.Name();
  service_.GetUserEntry(user_, entry_);
  ReadMore();
  if (entry_.address.empty()) service_.GetUserAddress(user_, entry_.address);
  enabled_ = entry_.enabled != 0;
  has_address_ = !entry_.address.empty();
  CPanel::OnInitDialog();
  UpdateWizardButtons();
}

void CUserPanel::Exchange(ui::DataExchange& x) {
  x.Text(service_field_, service_name_);
  x.Text(user_field_, entry_.name);
  x.Text(*address_, entry_.address);
  x.Check(*enable_, enabled_);
}

void CUserPanel::OnAddressChanged() {
  UpdateData(true);
  has_address_ = !entry_.address.empty();
  UpdateWizardButtons();
}

bool CUserPanel::OnSetActive() {
  UpdateWizardButtons();
  return CPanel::OnSetActive();
}

// A panel that nobody has seen holds no entry; writing it would empty the one that is stored.
bool CUserPanel::UpdatePanelData() { return Initialised() && Save(); }

bool CUserPanel::OnApply() {
  Save();
  return CPanel::OnApply();
}

bool CUserPanel::Save() {
  UpdateData(true);
  entry_.enabled = enabled_ ? 1 : 0;
  const bool saved = service_.SaveUserEntry(user_, entry_);
  return SaveMore() && saved;
}

CWizardPageMailUser::CWizardPageMailUser(CNtfyServiceUserBase& service, const GUID& user,
                                         std::uint32_t wizard_buttons)
    : CUserPanel(ctxhelp::kHelpMailUser, service, user, wizard_buttons),
      address_(*this, kIdAddress, "Email A&ddress:"),
      enable_(*this, kIdEnable, "&Enable service") {
  Bind(address_, enable_);
  address_.SetLimit(static_cast<std::size_t>(service.GetMaxUserAddressLength()));
  Arrange("Notification Service Configuration:", {ui::Over(service_field_), ui::Over(user_field_),
                                                  ui::Row({ui::Over(address_), ui::Bare(enable_)})});
}

void CWizardPageMailUser::OnInitDialog() {
  address_.SetFocus();
  CUserPanel::OnInitDialog();
}

CWizardPageMailAddUser::CWizardPageMailAddUser(CNtfyServiceMailBase& service, const GUID& user,
                                               std::uint32_t wizard_buttons)
    : CUserPanel(ctxhelp::kHelpMciUser, service, user, wizard_buttons),
      mail_(service),
      address_field_(*this, kIdAddress, "Email &Address:"),
      ems_box_(*this, kIdEmsEnable, "Enable EM&S"),
      ems_field_(*this, kIdEmsAddress, "E&MS Address:"),
      enable_(*this, kIdEnable, "&Enable service for user") {
  Bind(address_field_, enable_);
  address_field_.SetLimit(static_cast<std::size_t>(service.GetMaxUserAddressLength()));
  ems_field_.SetLimit(kMaxEmsAddress);
  ems_box_.SetOnChange([this] { OnEmsClicked(); });
  Arrange(
      kUserGroup,
      {ui::Row({ui::Column({ui::Over(service_field_), ui::Over(user_field_), ui::Over(address_field_)}),
                ui::Column({ui::Bare(ems_box_), ui::Over(ems_field_), ui::Bare(enable_), ui::Stretch()})})});
}

void CWizardPageMailAddUser::ReadMore() {
  std::uint32_t has_ems = 0;
  mail_.GetUserExtra(has_ems, ems_address_, User());
  has_ems_ = has_ems != 0;
}

void CWizardPageMailAddUser::OnInitDialog() {
  address_field_.SetFocus();
  CUserPanel::OnInitDialog();
  ems_field_.Enable(has_ems_);
}

void CWizardPageMailAddUser::Exchange(ui::DataExchange& x) {
  CUserPanel::Exchange(x);
  x.Check(ems_box_, has_ems_);
  x.Text(ems_field_, ems_address_);
}

void CWizardPageMailAddUser::OnEmsClicked() {
  UpdateData(true);
  ems_field_.Enable(has_ems_);
}

bool CWizardPageMailAddUser::SaveMore() { return mail_.SetUserExtra(has_ems_ ? 1 : 0, ems_address_, User()); }

CWizardPageNumAddUser::CWizardPageNumAddUser(CNtfyServiceUserBase& service, const GUID& user,
                                             std::uint32_t wizard_buttons, bool pin_mode)
    : CUserPanel(ctxhelp::kHelpPagerUser, service, user, wizard_buttons),
      number_(*this, kIdAddress, pin_mode ? "&PIN number:" : "&Phone number:"),
      enable_(*this, kIdEnable, "&Enable service for user") {
  Bind(number_, enable_);
  number_.SetLimit(kMaxNumber);
  number_.SetFilter(CharacterSet::kPhoneNumber);
  Arrange(kUserGroup,
          {ui::Over(service_field_), ui::Over(user_field_), ui::Over(number_), ui::Bare(enable_)});
}

}  // namespace alerting
