// SPDX-License-Identifier: MIT
#include "alerting/sheets/body_pages.h"

#include "alerting/responses/message_text.h"
#include "platform/base/utf8.h"

namespace alerting {
namespace {

enum ControlId { kIdBody = 100 };  // 101 is the button of the field
constexpr char kCaption[] = "&Edit Default Message:";
constexpr char kNumericCaption[] = "&Edit Default Message";
constexpr std::size_t kMaxNumericMessage = 32;

}  // namespace

std::string CBodyPage::ReadBody() {
  DefaultMessage message;
  Service().GetDefaultMessage(message);
  priority_ = message.priority;
  return ExpandKeywords(message.body, message.bodyKeywords);
}

bool CBodyPage::WriteBody(const std::string& shown) {
  DefaultMessage message;
  message.body = CollapseKeywords(shown, message.bodyKeywords);
  message.priority = priority_;
  return Service().SetDefaultMessage(message);
}

CPropPgHalfDefaultMsg::CPropPgHalfDefaultMsg()
    : CBodyPage(ctxhelp::kHelpBodyMessage), body_(*this, kIdBody, kCaption, "<< &Fields...") {
  body_.edit.SetMultiLine(true);
  SetLayout(ui::Group(kCaption,
                      {ui::Note(kEditMessageHint), ui::Row({ui::Bare(body_.edit), ui::Bare(body_.fields)})}));
}

void CPropPgHalfDefaultMsg::OnInitDialog() {
  const auto limit = static_cast<std::size_t>(Service().GetMaxMessageLength());
  body_.edit.SetLimit(limit);
  body_.text = ReadBody();
  body_.text.resize(platform::Utf8Prefix(body_.text, limit));
  CBodyPage::OnInitDialog();
}

bool CPropPgHalfDefaultMsg::SaveFields() { return WriteBody(WrapForService(Service(), body_.text)); }

CPropPgNumericPageDefMsg::CPropPgNumericPageDefMsg()
    : CBodyPage(ctxhelp::kHelpNumericMessage), message_(*this, kIdBody, kNumericCaption) {
  message_.SetLimit(kMaxNumericMessage);
  SetLayout(ui::Column(
      {ui::Group(kNumericCaption, {ui::Note(kNumericMessageHint), ui::Bare(message_)}), ui::Stretch()}));
}

void CPropPgNumericPageDefMsg::OnInitDialog() {
  text_ = ReadBody();
  CBodyPage::OnInitDialog();
}

}  // namespace alerting
