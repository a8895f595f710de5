// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/responses/message_field.h"
#include "alerting/sheets/service_page.h"

namespace alerting {

/// "Default Message" page of the mail services: subject, body and priority that a new response starts with.
class CPropPgDefaultMsg : public CServicePage {
 public:
  CPropPgDefaultMsg();

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override;
  bool SaveFields() override;

  MessageField subject_;
  ui::StaticText subject_note_;
  MessageField body_;
  ui::ComboBox priority_;
};

}  // namespace alerting
