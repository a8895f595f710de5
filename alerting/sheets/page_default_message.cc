// SPDX-License-Identifier: MIT
#include "alerting/sheets/page_default_message.h"

#include "alerting/responses/choose_keyword_dlg.h"
#include "alerting/responses/message_text.h"

namespace alerting {
namespace {

enum ControlId { kIdSubject = 100, kIdSubjectFields, kIdSubjectNote, kIdBody, kIdBodyFields, kIdPriority };
constexpr std::size_t kMaxBody = 1024;

constexpr char kHint[] =
    "You can edit the message which will be sent to the alert recipient. To add fields from the Event Log to "
    "the message, click Fields.";
constexpr char kCompuServeNote[] =
    "Note: Compuserve subjects have a maximum length of 40 characters.  If you use fields they may be "
    "truncated.";

}  // namespace

CPropPgDefaultMsg::CPropPgDefaultMsg()
    : CServicePage("Default Message", ctxhelp::kHelpDefaultMessage),
      subject_(*this, kIdSubject, "Mail Message &Subject:"),
      subject_fields_(*this, kIdSubjectFields, "<< Fie&lds..."),
      subject_note_(*this, kIdSubjectNote, kCompuServeNote),
      body_(*this, kIdBody, "Mail &Message Body:"),
      body_fields_(*this, kIdBodyFields, "<< &Fields..."),
      priority_(*this, kIdPriority, "P&riority:") {
  body_.SetMultiLine(true);
  SetLayout(
      ui::Column({ui::Group("Edit Default Message:",
                            {ui::Note(kHint), ui::Row({ui::Over(subject_), ui::Bare(subject_fields_)}),
                             ui::Bare(subject_note_), ui::Row({ui::Over(body_), ui::Bare(body_fields_)})}),
                  ui::Row({ui::Field(priority_), ui::Stretch()})}));
  subject_fields_.SetOnClick([this] { OnFields(subject_); });
  body_fields_.SetOnClick([this] { OnFields(body_); });
}

void CPropPgDefaultMsg::OnInitDialog() {
  body_.SetLimit(kMaxBody);
  subject_.SetLimit(static_cast<std::size_t>(Service().GetMaxSubjectLength()));
  DefaultMessage message;
  Service().GetDefaultMessage(message);
  body_text_ = ExpandKeywords(message.body, message.bodyKeywords);
  subject_text_ = ExpandKeywords(message.subject, message.subjectKeywords);
  priority_.Show(Service().FillPriorityList(priority_, message.priority));
  subject_note_.Show(Service().Code() == kTypeCompuServe);
  CServicePage::OnInitDialog();
}

void CPropPgDefaultMsg::Exchange(ui::DataExchange& x) {
  x.Text(subject_, subject_text_);
  x.Text(body_, body_text_);
}

void CPropPgDefaultMsg::OnFields(CKeywordEdit& editor) {
  if (InsertChosenKeyword(editor)) MarkModified();
}

bool CPropPgDefaultMsg::SaveFields() {
  DefaultMessage message;
  message.body = CollapseKeywords(WrapForService(Service(), body_text_), message.bodyKeywords);
  message.subject = CollapseKeywords(subject_text_, message.subjectKeywords);
  message.priority = static_cast<std::uint32_t>(priority_.Current());
  return Service().SetDefaultMessage(message);
}

}  // namespace alerting
