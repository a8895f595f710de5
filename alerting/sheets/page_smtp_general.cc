// SPDX-License-Identifier: MIT
#include "alerting/sheets/page_smtp_general.h"

#include "alerting/frame/companions.h"
#include "alerting/services/ntfy_service_smtp.h"

namespace alerting {
namespace {

constexpr int kIdServer = 102;
constexpr int kIdBrowse = 103;
constexpr std::size_t kMaxServer = 255;

}  // namespace

CPropPgSMTPGeneral::CPropPgSMTPGeneral()
    : CMailGeneralPage(ctxhelp::kHelpSmtpGeneral, kGeneralOf<CNtfyServiceSMTP>),
      server_(*this, kIdServer, "&SMTP Server:"),
      browse_(*this, kIdBrowse, server_),
      login_(*this) {
  SetLayout(FramesOver(
      "SMTP (Simple Message Transfer Protocol) is the standard Internet email service.",
      {ui::Row({ui::Field(server_), ui::Bare(browse_)}), ui::Field(login_.login), login_.PasswordRow()}));
  server_.SetLimit(kMaxServer);
  Bind(server_, server_name_, &GeneralFields::smtpServer);
  Bind(login_);
  login_.Hide();
  browse_.SetOnClick([this] { OnBrowse(); });
}

void CPropPgSMTPGeneral::OnBrowse() {
  UpdateData(true);
  char chosen[agentui::kAddressBufferSize] = {};
  TheCompanions().agentui->DisplayIPAddressMRUListDialog(this, chosen);
  if (chosen[0] == '\0') return;
  server_name_ = chosen;
  UpdateData(false);
  MarkModified();
}

/// The server heads the list that "..." offers, whether or not the service takes the values.
bool CPropPgSMTPGeneral::SaveFields() {
  TheCompanions().agentui->AddIPAddressToMRUList(server_name_.c_str());
  return CMailGeneralPage::SaveFields();
}

}  // namespace alerting
