// SPDX-License-Identifier: MIT
// Logging in (RFC 4954). Passwords are compared and forgotten: nothing that arrived shows them.
#include "lab/mail/smtp_session.h"
#include "platform/base/base64.h"
#include "platform/base/utf8.h"

namespace lab {

void SmtpSession::Authenticate(std::string_view argument) {
  const std::size_t space = std::min(argument.find(' '), argument.size());
  const std::string_view kind = argument.substr(0, space);
  const std::string_view first = argument.substr(std::min(space + 1, argument.size()));
  if (platform::EqualIgnoringCase(kind, "PLAIN")) {
    stage_ = Stage::kPlain;
    return first.empty() ? Reply("334 ") : TakePlain(first);
  }
  if (!platform::EqualIgnoringCase(kind, "LOGIN")) return Refuse("504 5.5.4 PLAIN or LOGIN");
  asked_login_ = first;
  stage_ = first.empty() ? Stage::kLogin : Stage::kPassword;
  Reply(first.empty() ? "334 VXNlcm5hbWU6" : "334 UGFzc3dvcmQ6");
}

/// On whose behalf, a zero, who, a zero, the password.
void SmtpSession::TakePlain(std::string_view text) {
  const std::string parts = platform::DecodeBase64(text).value_or("");
  const std::size_t first = parts.find('\0');
  const std::size_t second = first == parts.npos ? first : parts.find('\0', first + 1);
  if (second == parts.npos) {
    stage_ = Stage::kCommands;
    return Refuse("501 5.5.2 No login");
  }
  CheckLogin(platform::EncodeBase64(parts.substr(first + 1, second - first - 1)),
             platform::EncodeBase64(parts.substr(second + 1)));
}

void SmtpSession::CheckLogin(const std::string& login, const std::string& password) {
  stage_ = Stage::kCommands;
  const auto who = platform::DecodeBase64(login), secret = platform::DecodeBase64(password);
  if (!who || !secret) return Refuse("501 5.5.2 No login");
  const bool is_known = setup_.login.empty() || (*who == setup_.login && *secret == setup_.password);
  if (!is_known || faults_.Use(Fault::kWrongPassword)) return Refuse("535 5.7.8 Wrong login or password");
  login_ = *who;
  is_logged_in_ = true;
  Reply("235 2.7.0 Logged in");
}

bool SmtpSession::NeedsLogin() const {
  return !is_logged_in_ && (!setup_.login.empty() || faults_.Has(Fault::kWrongPassword));
}

}  // namespace lab
