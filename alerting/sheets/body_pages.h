// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "alerting/responses/message_field.h"
#include "alerting/sheets/service_page.h"
#include "alerting/ui/filtered_edit.h"

// "Default Message" pages of the services whose messages are a body alone.

namespace alerting {

/// What they share. A saved message has no subject; its priority, which nobody sees, stays what it was.
class CBodyPage : public CServicePage {
 protected:
  explicit CBodyPage(ctxhelp::HelpPage help_page) : CServicePage("Default Message", help_page) {}

  /// The default message's body as it is shown; its priority is kept for the save.
  std::string ReadBody();
  /// Hands a body over as it is shown.
  bool WriteBody(const std::string& shown);

 private:
  std::uint32_t priority_ = 0;
};

/// SNMP Trap, Text to Speech, Alphanumeric Pager, Generic Port: text with keywords.
class CPropPgHalfDefaultMsg : public CBodyPage {
 public:
  CPropPgHalfDefaultMsg();

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override { x.Text(body_.edit, body_.text); }
  bool SaveFields() override;

  MessageField body_;
};

/// Numeric Pager: digits, "*" and "#".
class CPropPgNumericPageDefMsg : public CBodyPage {
 public:
  CPropPgNumericPageDefMsg();

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override { x.Text(message_, text_); }
  bool SaveFields() override { return WriteBody(text_); }

  std::string text_;
  CFilteredEdit message_;
};

}  // namespace alerting
