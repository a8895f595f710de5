// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/sheets/mail_general_page.h"
#include "alerting/ui/filtered_edit.h"

// General pages of the mail services that need no more than fields to fill in.

namespace alerting {

/// The mail services that are dialed: phone number and login.
class CDialedMailPage : public CMailGeneralPage {
 protected:
  CDialedMailPage(ctxhelp::HelpPage help_page, const GeneralAccess& access, const std::string& description);

 private:
  std::string phone_number_;
  CFilteredEdit phone_;
  LoginFields login_;
};

class CPropPgMCIGeneral : public CDialedMailPage {
 public:
  CPropPgMCIGeneral();
};

class CPropPgCISGeneral : public CDialedMailPage {
 public:
  CPropPgCISGeneral();
};

/// The mail services of a local mail system: login alone.
class CLoginMailPage : public CMailGeneralPage {
 protected:
  CLoginMailPage(ctxhelp::HelpPage help_page, const GeneralAccess& access, const std::string& description,
                 std::string login_label);

 private:
  LoginFields login_;
};

class CPropPgMAPIGeneral : public CLoginMailPage {
 public:
  CPropPgMAPIGeneral();
};

class CPropPgVIMGeneral : public CLoginMailPage {
 public:
  CPropPgVIMGeneral();
};

}  // namespace alerting
