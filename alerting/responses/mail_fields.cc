// SPDX-License-Identifier: MIT
#include "alerting/responses/mail_fields.h"

#include "alerting/responses/message_text.h"

namespace alerting {
namespace {

constexpr std::size_t kMaxBody = 1024;

}  // namespace

MailFields::MailFields(ui::Form& form, int first_id)
    : subject(form, first_id, "Mail Message &Subject:", "<< Fie&lds..."),
      body(form, first_id + 2, "Mail &Message Body:", "<< &Fields..."),
      priority(form, first_id + 4, "P&riority:") {
  body.edit.SetMultiLine(true);
  body.edit.SetLimit(kMaxBody);
}

void MailFields::Show(CNtfyService& service, const DefaultMessage& message) {
  subject.edit.SetLimit(static_cast<std::size_t>(service.GetMaxSubjectLength()));
  subject.Expand(message.subject, message.subjectKeywords);
  body.Expand(message.body, message.bodyKeywords);
  priority.Show(service.FillPriorityList(priority, message.priority));
}

void MailFields::Exchange(ui::DataExchange& x) {
  x.Text(subject.edit, subject.text);
  x.Text(body.edit, body.text);
}

DefaultMessage MailFields::Message(const CNtfyService& service) {
  DefaultMessage message;
  body.text = WrapForService(service, body.text);
  message.body = body.Collapse(message.bodyKeywords);
  message.subject = subject.Collapse(message.subjectKeywords);
  message.priority = ChosenPriority(priority);
  return message;
}

std::uint32_t ChosenPriority(const ui::ComboBox& priorities) {
  return static_cast<std::uint32_t>(priorities.Data(priorities.Current()));
}

}  // namespace alerting
