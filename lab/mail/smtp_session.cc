// SPDX-License-Identifier: MIT
#include "lab/mail/smtp_session.h"

#include "platform/base/utf8.h"

namespace lab {

const SmtpSession::Command SmtpSession::kCommands[] = {
    {"EHLO", &SmtpSession::ExtendedHello}, {"HELO", &SmtpSession::Hello},
    {"STARTTLS", &SmtpSession::StartTls},  {"AUTH", &SmtpSession::Authenticate},
    {"MAIL", &SmtpSession::Mail},          {"RCPT", &SmtpSession::Recipient},
    {"DATA", &SmtpSession::Data},          {"RSET", &SmtpSession::Reset},
    {"NOOP", &SmtpSession::Nothing},       {"QUIT", &SmtpSession::Quit},
};

void SmtpSession::Begin(Millis now) {
  now_ = now;
  if (faults_.Use(Fault::kGreetingMissing)) {
    Note("closed without a greeting");
    End();
  } else if (faults_.Use(Fault::kBusy)) {
    Refuse("421 lab.invalid is too busy, try later");
    End();
  } else if (!faults_.Has(Fault::kSilent)) {
    Reply("220 lab.invalid ESMTP laboratory");
  }
}

void SmtpSession::Take(std::string_view bytes, Millis now) {
  now_ = now;
  if (faults_.Has(Fault::kSilent) || IsOver()) return;
  while (!bytes.empty() && stage_ != Stage::kBroken)
    if (const auto line = lines_.Take(bytes)) TakeLine(*line);
  if (stage_ != Stage::kBroken || bytes.empty()) return;
  // The first bytes of the handshake have come: what is said to them is no record of any version of TLS.
  Say("this is not TLS\r\n", now_);
  Note("broke the TLS handshake");
  End();
}

void SmtpSession::TakeLine(const std::string& line) {
  if (stage_ == Stage::kData) return TakeDataLine(line);
  if (lines_.WasCut()) return Refuse("500 The line is too long");
  switch (stage_) {
    case Stage::kPlain:
      return TakePlain(line);
    case Stage::kLogin:
      asked_login_ = line;
      stage_ = Stage::kPassword;
      return Reply("334 UGFzc3dvcmQ6");
    case Stage::kPassword:
      return CheckLogin(asked_login_, line);
    default:
      return Obey(line);
  }
}

void SmtpSession::Obey(std::string_view line) {
  for (const auto& [word, handler] : kCommands) {
    const std::string_view name = word;
    if (!platform::StartsWithIgnoringCase(line, name)) continue;
    if (line.size() > name.size() && line[name.size()] != ' ') continue;
    return (this->*handler)(line.substr(std::min(line.size(), name.size() + 1)));
  }
  Refuse("500 Not a command of this server");
}

void SmtpSession::Hello(std::string_view argument) {
  Forget();
  helo_ = argument;
  Reply("250 lab.invalid");
}

void SmtpSession::ExtendedHello(std::string_view argument) {
  Forget();
  helo_ = argument;
  std::string reply =
      "250-lab.invalid\r\n250-SIZE " + std::to_string(kLargestMessage) + "\r\n250-8BITMIME\r\n";
  if (faults_.Has(Fault::kTlsBroken)) reply += "250-STARTTLS\r\n";
  Reply(reply + "250 AUTH PLAIN LOGIN");
}

void SmtpSession::StartTls(std::string_view) {
  if (!faults_.Has(Fault::kTlsBroken)) return Refuse("502 There is no encryption here");
  Reply("220 Go ahead");
  stage_ = Stage::kBroken;
}

void SmtpSession::Mail(std::string_view argument) {
  if (NeedsLogin()) return Refuse("530 5.7.0 Log in first");
  if (helo_.empty()) return Refuse("503 Say who you are first");
  if (has_sender_) return Refuse("503 There is a sender already");
  if (!platform::StartsWithIgnoringCase(argument, "FROM:<")) return Refuse("501 No sender");
  const std::string_view address = argument.substr(6);
  if (address.find('>') == address.npos) return Refuse("501 No sender");
  sender_ = address.substr(0, address.find('>'));
  has_sender_ = true;
  Reply("250 2.1.0 Sender accepted");
}

void SmtpSession::Recipient(std::string_view argument) {
  if (!has_sender_) return Refuse("503 There is no sender yet");
  if (!platform::StartsWithIgnoringCase(argument, "TO:<")) return Refuse("501 No recipient");
  const std::string_view address = argument.substr(4);
  if (address.find('>') == address.npos || address.starts_with('>')) return Refuse("501 No recipient");
  if (recipients_.size() >= kMostRecipients) return Refuse("452 4.5.3 Too many recipients");
  if (faults_.Use(Fault::kRecipientRefused)) return Refuse("550 5.1.1 Nobody of that address is known here");
  recipients_.emplace_back(address.substr(0, address.find('>')));
  Reply("250 2.1.5 Recipient accepted");
}

void SmtpSession::Data(std::string_view) {
  if (recipients_.empty()) return Refuse("503 There is no recipient yet");
  stage_ = Stage::kData;
  Reply("354 Go on, and end with a dot in a line of its own");
}

void SmtpSession::Reset(std::string_view) {
  Forget();
  Reply("250 Forgotten");
}

void SmtpSession::Nothing(std::string_view) { Reply("250 Nothing done"); }

void SmtpSession::Quit(std::string_view) {
  Reply("221 Goodbye");
  End();
}

void SmtpSession::Forget() {
  sender_.clear();
  data_.clear();
  recipients_.clear();
  has_sender_ = is_too_large_ = false;
}

void SmtpSession::Reply(const std::string& text) {
  Say(text + "\r\n", now_ + (faults_.Has(Fault::kSlow) ? setup_.slow : 0));
}

/// Who makes nothing but errors is no mail program.
void SmtpSession::Refuse(const std::string& text) {
  Note("refused: " + text);
  Reply(text);
  if (++errors_ >= kMostErrors) End();
}

void SmtpSession::Note(const std::string& what) {
  sink_({faults_.Device(), what, nlohmann::ordered_json::object()});
}

}  // namespace lab
