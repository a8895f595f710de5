// SPDX-License-Identifier: MIT
#include "alerting/sheets/mail_general_page.h"

namespace alerting {

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

void CMailGeneralPage::OnInitDialog() {
  const auto max_password = static_cast<std::size_t>(Service().GetMaxPasswordLength());
  login_->login.SetLimit(static_cast<std::size_t>(Service().GetMaxLoginIdLength()));
  login_->password.SetLimit(max_password);
  login_->verify.SetLimit(max_password);
  CGeneralPage::OnInitDialog();
}

void CMailGeneralPage::TakeFields(const GeneralFields& fields) {
  for (BoundText& text : texts_) text.value = ShownText((fields.*text.field).value_or(""));
}

void CMailGeneralPage::Exchange(ui::DataExchange& x) {
  CGeneralPage::Exchange(x);
  for (BoundText& text : texts_) x.Text(text.edit, text.value);
}

void CMailGeneralPage::CollectFields(GeneralFields& fields) const {
  for (const BoundText& text : texts_) fields.*text.field = text.value;
}

}  // namespace alerting
