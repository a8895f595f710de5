// SPDX-License-Identifier: MIT
#include "alerting/sheets/mail_general_page.h"

namespace alerting {
namespace {

constexpr char kTestHint[] = "Press Test to send a test message using this service.";

/// Records keep an empty text as a single blank.
std::string Shown(const std::string& stored) { return stored == " " ? std::string() : stored; }

}  // namespace

LoginFields::LoginFields(ui::Form& page, std::string login_label)
    : login(page, kIdLogin, std::move(login_label)),
      password(page, kIdPassword, "&Password:"),
      verify(page, kIdVerifyPassword, "&Verify Password:") {
  password.SetMasked(true);
  verify.SetMasked(true);
}

void LoginFields::Hide() {
  for (ui::Edit* field : {&login, &password, &verify}) field->Show(false);
}

void CMailGeneralPage::Bind(LoginFields& login) {
  Bind(login.login, login.login_text, &GeneralFields::loginId);
  Bind(login.password, login.password_text, &GeneralFields::password);
  Bind(login.verify, login.verify_text, &GeneralFields::verifyPassword);
  login_ = &login;
}

ui::LayoutNode CMailGeneralPage::MailLayout(const std::string& description, ui::LayoutNodes fields) {
  return ui::Column({Frames(description, kTestHint), ui::Group("Notification Service Configuration", fields),
                     ui::Stretch()});
}

void CMailGeneralPage::OnInitDialog() {
  const auto max_password = static_cast<std::size_t>(Service().GetMaxPasswordLength());
  login_->login.SetLimit(static_cast<std::size_t>(Service().GetMaxLoginIdLength()));
  login_->password.SetLimit(max_password);
  login_->verify.SetLimit(max_password);
  const GeneralFields fields = ReadFields();
  for (BoundText& text : texts_) text.value = Shown((fields.*text.field).value_or(""));
  SetServiceEnabled(fields.enabled.value_or(0) != 0);
  CGeneralPage::OnInitDialog();
}

void CMailGeneralPage::Exchange(ui::DataExchange& x) {
  CGeneralPage::Exchange(x);
  for (BoundText& text : texts_) x.Text(text.edit, text.value);
}

bool CMailGeneralPage::SaveFields() {
  GeneralFields fields;
  for (const BoundText& text : texts_) fields.*text.field = text.value;
  fields.enabled = IsServiceEnabled() ? 1 : 0;
  return WriteFields(fields);
}

}  // namespace alerting
