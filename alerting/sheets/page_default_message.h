// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/responses/mail_fields.h"
#include "alerting/sheets/service_page.h"

namespace alerting {

/// "Default Message" page of the mail services: subject, body and priority that a new response starts with.
class CPropPgDefaultMsg : public CServicePage {
 public:
  CPropPgDefaultMsg();

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override { mail_.Exchange(x); }
  bool SaveFields() override { return Service().SetDefaultMessage(mail_.Message(Service())); }

  MailFields mail_;
  ui::StaticText subject_note_;
};

}  // namespace alerting
