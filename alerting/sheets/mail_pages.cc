// SPDX-License-Identifier: MIT
#include "alerting/sheets/mail_pages.h"

#include "alerting/services/ntfy_service_cis.h"
#include "alerting/services/ntfy_service_mapi.h"
#include "alerting/services/ntfy_service_mci.h"
#include "alerting/services/ntfy_service_vim.h"

namespace alerting {
namespace {

constexpr int kIdPhone = 102;
constexpr std::size_t kMaxPhone = 25;

}  // namespace

CDialedMailPage::CDialedMailPage(ctxhelp::HelpPage help_page, const GeneralAccess& access,
                                 const std::string& description)
    : CMailGeneralPage(help_page, access), phone_(*this, kIdPhone, "P&hone #:"), login_(*this) {
  SetLayout(FramesOver(description, {ui::Field(phone_), ui::Field(login_.login), login_.PasswordRow()}));
  phone_.SetFilter(CharacterSet::kPhoneNumber);
  phone_.SetLimit(kMaxPhone);
  Bind(phone_, phone_number_, &GeneralFields::phoneNumber);
  Bind(login_);
}

CPropPgMCIGeneral::CPropPgMCIGeneral()
    : CDialedMailPage(ctxhelp::kHelpMciGeneral, kGeneralOf<CNtfyServiceMCI>,
                      "MCI is an online information service that supports email.") {}

CPropPgCISGeneral::CPropPgCISGeneral()
    : CDialedMailPage(ctxhelp::kHelpCisGeneral, kGeneralOf<CNtfyServiceCIS>,
                      "Compuserve is an online information service that supports email.") {}

CLoginMailPage::CLoginMailPage(ctxhelp::HelpPage help_page, const GeneralAccess& access,
                               const std::string& description, std::string login_label)
    : CMailGeneralPage(help_page, access), login_(*this, std::move(login_label)) {
  SetLayout(FramesOver(description,
                       {ui::Field(login_.login), ui::Field(login_.password), ui::Field(login_.verify)}));
  Bind(login_);
}

CPropPgMAPIGeneral::CPropPgMAPIGeneral()
    : CLoginMailPage(ctxhelp::kHelpMapiGeneral, kGeneralOf<CNtfyServiceMAPI>,
                     "MAPI (Messaging Application Program Interface) is Microsoft's email service.",
                     "&Login ID or Profile Name:") {}

CPropPgVIMGeneral::CPropPgVIMGeneral()
    : CLoginMailPage(ctxhelp::kHelpVimGeneral, kGeneralOf<CNtfyServiceVIM>,
                     "cc:Mail is a VIM (Vendor Independent Messaging) email service.", "&Login ID:") {}

}  // namespace alerting
