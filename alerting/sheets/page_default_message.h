// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/sheets/service_page.h"
#include "alerting/ui/keyword_edit.h"

namespace alerting {

/// "Default Message" page of the mail services: subject, body and priority that a new response starts with.
class CPropPgDefaultMsg : public CServicePage {
 public:
  CPropPgDefaultMsg();

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override;
  bool SaveFields() override;
  void OnFields(CKeywordEdit& editor);

  std::string subject_text_, body_text_;
  CKeywordEdit subject_;
  ui::Button subject_fields_;
  ui::StaticText subject_note_;
  CKeywordEdit body_;
  ui::Button body_fields_;
  ui::ComboBox priority_;
};

}  // namespace alerting
