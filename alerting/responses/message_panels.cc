// SPDX-License-Identifier: MIT
#include "alerting/responses/message_panels.h"

#include "alerting/frame/messages.h"
#include "alerting/responses/message_text.h"
#include "alerting/services/default_message.h"
#include "platform/base/utf8.h"

namespace alerting {
namespace {

constexpr int kIdMessage = 100;  // a field's button is the one behind it
constexpr std::size_t kMaxNumericMessage = 32;
constexpr std::uint32_t kUsualPriority = 2;

DefaultMessage MessageOf(const ALERTRESPREC& response) {
  return {std::string(response.message.View()), std::string(response.subject.View()), response.priority,
          ResponseKeywords(response.messageKeywords), ResponseKeywords(response.subjectKeywords)};
}

}  // namespace

// A panel in a window that is no sheet has its host for a parent.
bool CMessagePanel::OnSetActive() {
  ui::Window* parent = Sheet() != nullptr ? Sheet() : HostDialog();
  if (WizardButtons() != 0 && parent != nullptr) parent->SetWizardButtons(WizardButtons());
  return CResponsePanel::OnSetActive();
}

DefaultMessage CMessagePanel::FirstMessage() {
  DefaultMessage message;
  message.priority = kUsualPriority;
  if (Response() == nullptr) return message;
  if (HasMessage(*Response())) return MessageOf(*Response());
  if (AddingMark() == 0) ShowMessage(kIdsDefaultMessageInserted, this);
  service_.GetDefaultMessage(message);
  return message;
}

void CMessagePanel::WriteResponse(ALERTRESPREC& response) {
  const DefaultMessage message = Message();
  InitResponseMessage(message, response);
  response.serviceRecordType = service_.Common().recordType;
  WriteMore(message, response);
}

CWizardPageMailAddResp::CWizardPageMailAddResp(CNtfyService& service, ALERTRESPREC* response,
                                               std::uint32_t wizard_buttons)
    : CMessagePanel(ctxhelp::kHelpMailResponse, service, response, wizard_buttons), mail_(*this, kIdMessage) {
  SetLayout(
      ui::Column({ui::Note(kEditMessageHint), mail_.SubjectRow(), mail_.BodyRow(), mail_.PriorityRow()}));
}

void CWizardPageMailAddResp::OnInitDialog() {
  mail_.Show(Service(), FirstMessage());
  CMessagePanel::OnInitDialog();
}

bool CWizardPageMailAddResp::HasMessage(const ALERTRESPREC& response) const {
  return !response.message.Empty() || !response.subject.Empty();
}

void CWizardPageMailAddResp::WriteMore(const DefaultMessage& message, ALERTRESPREC& response) {
  InitResponseSubject(message, response);
  response.priority = static_cast<std::uint16_t>(message.priority);
}

CWizardPageHalfAddResp::CWizardPageHalfAddResp(CNtfyService& service, ALERTRESPREC* response,
                                               std::uint32_t wizard_buttons)
    : CMessagePanel(ctxhelp::kHelpBodyResponse, service, response, wizard_buttons),
      body_(*this, kIdMessage, "&Message:", "<< &Fields...") {
  body_.edit.SetMultiLine(true);
  SetLayout(
      ui::Column({ui::Note(kEditMessageHint), ui::Row({ui::Over(body_.edit), ui::Bare(body_.fields)})}));
}

void CWizardPageHalfAddResp::OnInitDialog() {
  const auto limit = static_cast<std::size_t>(Service().GetMaxMessageLength());
  DefaultMessage message = FirstMessage();
  if (Response() == nullptr) Service().GetDefaultMessage(message);
  body_.edit.SetLimit(limit);
  body_.Expand(message.body, message.bodyKeywords);
  body_.text.resize(platform::Utf8Prefix(body_.text, limit));
  CMessagePanel::OnInitDialog();
}

DefaultMessage CWizardPageHalfAddResp::Message() {
  DefaultMessage message;
  body_.text = WrapForService(Service(), body_.text);
  message.body = body_.Collapse(message.bodyKeywords);
  return message;
}

CWizardPageNumAddResp::CWizardPageNumAddResp(CNtfyService& service, ALERTRESPREC* response,
                                             std::uint32_t wizard_buttons)
    : CMessagePanel(ctxhelp::kHelpNumericResponse, service, response, wizard_buttons),
      message_(*this, kIdMessage, "&Message:") {
  message_.SetLimit(kMaxNumericMessage);
  SetLayout(ui::Column({ui::Note(kNumericMessageHint), ui::Over(message_), ui::Stretch()}));
}

void CWizardPageNumAddResp::OnInitDialog() {
  const DefaultMessage message = FirstMessage();
  text_ = ExpandKeywords(message.body, message.bodyKeywords);
  CMessagePanel::OnInitDialog();
}

DefaultMessage CWizardPageNumAddResp::Message() {
  DefaultMessage message;
  message.body = CollapseKeywords(text_, message.bodyKeywords);
  return message;
}

}  // namespace alerting
