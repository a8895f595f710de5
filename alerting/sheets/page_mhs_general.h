// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/sheets/mail_general_page.h"

namespace alerting {

/// General page of MHS Mail: where the mail system has its post office, and the login. The directory is kept in
/// universal network form, so that it means the same to alert managers on other machines.
class CPropPgMHSGeneral : public CMailGeneralPage {
 public:
  CPropPgMHSGeneral();

 private:
  void OnInitDialog() override;
  bool SaveFields() override;
  void OnBrowse();

  std::string directory_text_;
  ui::Edit directory_;
  ui::BrowseButton browse_;
  LoginFields login_;
};

}  // namespace alerting
