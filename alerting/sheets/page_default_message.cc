// SPDX-License-Identifier: MIT
#include "alerting/sheets/page_default_message.h"

#include "alerting/responses/message_text.h"

namespace alerting {
namespace {

enum ControlId { kIdMail = 100, kIdSubjectNote = 105 };

constexpr char kCompuServeNote[] =
    "Note: Compuserve subjects have a maximum length of 40 characters.  If you use fields they may be "
    "truncated.";

}  // namespace

CPropPgDefaultMsg::CPropPgDefaultMsg()
    : CServicePage("Default Message", ctxhelp::kHelpDefaultMessage),
      mail_(*this, kIdMail),
      subject_note_(*this, kIdSubjectNote, kCompuServeNote) {
  SetLayout(ui::Column({ui::Group("Edit Default Message:", {ui::Note(kEditMessageHint), mail_.SubjectRow(),
                                                            ui::Bare(subject_note_), mail_.BodyRow()}),
                        mail_.PriorityRow()}));
}

void CPropPgDefaultMsg::OnInitDialog() {
  DefaultMessage message;
  Service().GetDefaultMessage(message);
  mail_.Show(Service(), message);
  subject_note_.Show(Service().Code() == kTypeCompuServe);
  CServicePage::OnInitDialog();
}

}  // namespace alerting
