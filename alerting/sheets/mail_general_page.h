// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "alerting/sheets/general_page.h"
#include "platform/ui/edit.h"

namespace alerting {

/// Login and password, which all mail services have.
struct LoginFields {
  static constexpr int kIdLogin = 110;
  static constexpr int kIdPassword = 111;
  static constexpr int kIdVerifyPassword = 112;

  explicit LoginFields(ui::Form& page, std::string login_label = "&Login ID:");
  /// Takes them from the screen; their values are still read and saved.
  void Hide();
  /// Password and its repetition side by side.
  ui::LayoutNode PasswordRow() { return ui::Row({ui::Field(password), ui::Field(verify)}); }

  ui::Edit login, password, verify;
  std::string login_text, password_text, verify_text;
};

/// The General page of the six mail services: texts, each bound to one of the service's general fields. A
/// derived page declares its fields and a LoginFields in tab order, binds them, and lays them out with FramesOver.
class CMailGeneralPage : public CGeneralPage {
 protected:
  using GeneralText = std::optional<std::string> GeneralFields::*;

  using CGeneralPage::CGeneralPage;

  /// Binds a control to a value and a general field. All three must outlive the page.
  void Bind(ui::Edit& edit, std::string& value, GeneralText field) { texts_.push_back({edit, value, field}); }
  void Bind(LoginFields& login);

  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override;
  void TakeFields(const GeneralFields& fields) override;
  void CollectFields(GeneralFields& fields) const override;

 private:
  struct BoundText {
    ui::Edit& edit;
    std::string& value;
    GeneralText field;
  };

  std::vector<BoundText> texts_;
  LoginFields* login_ = nullptr;
};

}  // namespace alerting
