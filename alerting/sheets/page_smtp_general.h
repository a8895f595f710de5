// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/sheets/mail_general_page.h"

namespace alerting {

/// General page of Internet Mail: the mail server. The login, which this version does not show, is carried
/// through a save.
class CPropPgSMTPGeneral : public CMailGeneralPage {
 public:
  CPropPgSMTPGeneral();

 private:
  bool SaveFields() override;
  void OnBrowse();

  std::string server_name_;
  ui::Edit server_;
  ui::BrowseButton browse_;
  LoginFields login_;
};

}  // namespace alerting
