// SPDX-License-Identifier: MIT
#include "alerting/testing/message_tests.h"

#include "alerting/responses/mail_fields.h"
#include "alerting/responses/message_text.h"
#include "alerting/ui/filtered_edit.h"

namespace alerting {
namespace {

constexpr std::size_t kMaxBody = 1024;

}  // namespace

CMessageTestDlg::CMessageTestDlg(ui::Window* parent, CNtfyService& service, const MessageTest& test,
                                 const GUID& user)
    : CTestDialog(parent, test.caption, test.help_page, service), test_(test), user_(user) {
  using Target = MessageTest::Target;
  const auto update = [this] { UpdateOk(); };
  if (test.target == Target::kUser)
    target_.emplace(*this, kIdTarget, "&Alert Recipient:", TargetField::UserOf(service, *this), update);
  if (test.target == Target::kComputer)
    target_.emplace(*this, kIdTarget, "&Target Workstation:", TargetField::Computer(*this), update);
  if (test.digits)
    message_ = std::make_unique<CFilteredEdit>(*this, kIdMessage, test.label);
  else
    message_ = std::make_unique<ui::Edit>(*this, kIdMessage, test.label);
  message_->SetMultiLine(!test.digits);
  message_->SetLimit(test.limit != 0 ? test.limit : static_cast<std::size_t>(service.GetMaxMessageLength()));
  message_->SetOnChange(update);
  std::vector<ui::LayoutNode> fields;
  if (target_) fields.push_back(target_->Row());
  fields.push_back(ui::Over(*message_));
  Arrange(std::move(fields));
}

void CMessageTestDlg::OnInitDialog() {
  text_ = ShownDefaultMessage().body;
  CTestDialog::OnInitDialog();
  UpdateOk();
}

void CMessageTestDlg::UpdateOk() {
  const bool speaks = test_.target == MessageTest::Target::kComputer;
  Buttons().ok.Enable((!target_ || target_->IsChosen()) && !(speaks && message_->Text().empty()));
}

bool CMessageTestDlg::Send() {
  text_ = WrapForService(Service(), text_);
  return Service().SendTestAlert(target_ ? target_->id : user_, text_.c_str(), nullptr, 0, this);
}

CMailTestDlg::CMailTestDlg(ui::Window* parent, CNtfyService& service, const GUID* user)
    : CTestDialog(parent, user == nullptr ? "Site Alerting Service Test: " : "User Alerting Service Test:",
                  ctxhelp::kHelpMailTest, service),
      recipient_(user != nullptr
                     ? std::nullopt
                     : std::make_optional<TargetField>(
                           *this, kIdTarget, "&Alert Recipient:", TargetField::UserOf(service, *this),
                           [this] { Buttons().ok.Enable(recipient_->IsChosen()); })),
      priority_(*this, kIdPriority, "&Priority:"),
      subject_(*this, kIdSubject, "Message &Subject:"),
      body_(*this, kIdMessage, "Message &Body:") {
  if (user != nullptr) user_ = *user;
  subject_.SetLimit(static_cast<std::size_t>(service.GetMaxSubjectLength()));
  body_.SetMultiLine(true);
  body_.SetLimit(kMaxBody);
  std::vector<ui::LayoutNode> fields;
  if (recipient_) fields.push_back(recipient_->Row());
  fields.push_back(ui::Row({ui::Field(priority_), ui::Stretch()}));
  fields.push_back(ui::Over(subject_));
  fields.push_back(ui::Over(body_));
  Arrange(std::move(fields));
}

void CMailTestDlg::OnInitDialog() {
  const DefaultMessage message = ShownDefaultMessage();
  subject_text_ = message.subject;
  body_text_ = message.body;
  priority_.Show(Service().FillPriorityList(priority_, message.priority));
  CTestDialog::OnInitDialog();
  if (recipient_) Buttons().ok.Enable(false);
}

void CMailTestDlg::Exchange(ui::DataExchange& x) {
  x.Text(subject_, subject_text_);
  x.Text(body_, body_text_);
}

bool CMailTestDlg::Send() {
  body_text_ = WrapForService(Service(), body_text_);
  return Service().SendTestAlert(recipient_ ? recipient_->id : user_, body_text_.c_str(),
                                 subject_text_.c_str(), static_cast<std::uint16_t>(ChosenPriority(priority_)),
                                 this);
}

}  // namespace alerting
