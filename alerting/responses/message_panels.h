// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/responses/mail_fields.h"
#include "alerting/responses/response_panel.h"
#include "alerting/ui/filtered_edit.h"

// Panels for the message of a response, one for each kind of message.

namespace alerting {

/// What they share: a response without a message begins with the service's default message, which is told unless the
/// response is new.
class CMessagePanel : public CResponsePanel {
 public:
  bool OnSetActive() override;

 protected:
  CMessagePanel(ctxhelp::HelpPage help_page, CNtfyService& service, ALERTRESPREC* response,
                std::uint32_t wizard_buttons)
      : CResponsePanel("Message", help_page, response, wizard_buttons), service_(service) {}

  CNtfyService& Service() const { return service_; }
  /// What the panel begins with: the response's message, else the default one.
  DefaultMessage FirstMessage();
  virtual bool HasMessage(const ALERTRESPREC& response) const { return !response.message.Empty(); }
  /// The panel's values in stored form.
  virtual DefaultMessage Message() = 0;
  /// What a panel writes besides message and type.
  virtual void WriteMore(const DefaultMessage&, ALERTRESPREC&) {}

 private:
  void WriteResponse(ALERTRESPREC& response) final;

  CNtfyService& service_;
};

/// The mail services: subject, body, priority.
class CWizardPageMailAddResp : public CMessagePanel {
 public:
  CWizardPageMailAddResp(CNtfyService& service, ALERTRESPREC* response, std::uint32_t wizard_buttons);

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override { mail_.Exchange(x); }
  bool HasMessage(const ALERTRESPREC& response) const override;
  DefaultMessage Message() override { return mail_.Message(Service()); }
  void WriteMore(const DefaultMessage& message, ALERTRESPREC& response) override;

  MailFields mail_;
};

/// SNMP Trap, Generic Port, Text to Speech, Alphanumeric Pager: text with keywords.
class CWizardPageHalfAddResp : public CMessagePanel {
 public:
  CWizardPageHalfAddResp(CNtfyService& service, ALERTRESPREC* response, std::uint32_t wizard_buttons);

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override { x.Text(body_.edit, body_.text); }
  DefaultMessage Message() override;

  MessageField body_;
};

/// Numeric Pager: digits, "*" and "#".
class CWizardPageNumAddResp : public CMessagePanel {
 public:
  CWizardPageNumAddResp(CNtfyService& service, ALERTRESPREC* response, std::uint32_t wizard_buttons);

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override { x.Text(message_, text_); }
  DefaultMessage Message() override;

  std::string text_;
  CFilteredEdit message_;
};

}  // namespace alerting
