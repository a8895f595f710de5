// SPDX-License-Identifier: MIT
#include "alerting/sheets/page_default_message.h"

#include "alerting/responses/message_text.h"

namespace alerting {
namespace {

// The button of a field has the identifier behind its field's.
enum ControlId { kIdSubject = 100, kIdSubjectNote = 102, kIdBody, kIdPriority = 105 };
constexpr std::size_t kMaxBody = 1024;

constexpr char kCompuServeNote[] =
    "Note: Compuserve subjects have a maximum length of 40 characters.  If you use fields they may be "
    "truncated.";

}  // namespace

CPropPgDefaultMsg::CPropPgDefaultMsg()
    : CServicePage("Default Message", ctxhelp::kHelpDefaultMessage),
      subject_(*this, kIdSubject, "Mail Message &Subject:", "<< Fie&lds..."),
      subject_note_(*this, kIdSubjectNote, kCompuServeNote),
      body_(*this, kIdBody, "Mail &Message Body:", "<< &Fields..."),
      priority_(*this, kIdPriority, "P&riority:") {
  body_.edit.SetMultiLine(true);
  body_.edit.SetLimit(kMaxBody);
  SetLayout(ui::Column(
      {ui::Group("Edit Default Message:",
                 {ui::Note(kEditMessageHint), ui::Row({ui::Over(subject_.edit), ui::Bare(subject_.fields)}),
                  ui::Bare(subject_note_), ui::Row({ui::Over(body_.edit), ui::Bare(body_.fields)})}),
       ui::Row({ui::Field(priority_), ui::Stretch()})}));
}

void CPropPgDefaultMsg::OnInitDialog() {
  subject_.edit.SetLimit(static_cast<std::size_t>(Service().GetMaxSubjectLength()));
  DefaultMessage message;
  Service().GetDefaultMessage(message);
  body_.Expand(message.body, message.bodyKeywords);
  subject_.Expand(message.subject, message.subjectKeywords);
  priority_.Show(Service().FillPriorityList(priority_, message.priority));
  subject_note_.Show(Service().Code() == kTypeCompuServe);
  CServicePage::OnInitDialog();
}

void CPropPgDefaultMsg::Exchange(ui::DataExchange& x) {
  x.Text(subject_.edit, subject_.text);
  x.Text(body_.edit, body_.text);
}

bool CPropPgDefaultMsg::SaveFields() {
  DefaultMessage message;
  body_.text = WrapForService(Service(), body_.text);
  message.body = body_.Collapse(message.bodyKeywords);
  message.subject = subject_.Collapse(message.subjectKeywords);
  message.priority = static_cast<std::uint32_t>(priority_.Current());
  return Service().SetDefaultMessage(message);
}

}  // namespace alerting
