// SPDX-License-Identifier: MIT
#include "server/transports/transports.h"

#ifdef ALERTSERVER_WITH_CURL

#include <algorithm>
#include <charconv>

#include "platform/base/guid.h"
#include "platform/base/host_name.h"
#include "server/mail_message.h"
#include "server/recipient.h"
#include "server/smtp_talk.h"

namespace alertserver {
namespace {

/// A name or an address of a host: nothing that means anything else in a URL.
bool IsHost(std::string_view host) {
  const auto is_fine = [](unsigned char c) {
    return std::isalnum(c) != 0 ||
           std::string_view(".-_:[]").find(static_cast<char>(c)) != std::string_view::npos;
  };
  return !host.empty() && std::ranges::all_of(host, is_fine);
}

/// "host:2525" names a port of its own; an IPv6 address has colons too.
void SplitPort(std::string& host, std::uint16_t& port) {
  const std::size_t colon = host.rfind(':');
  if (colon == std::string::npos || (host.find(':') != colon && !host.starts_with('['))) return;
  std::uint16_t own = 0;
  const char* const end = host.data() + host.size();
  const auto read = std::from_chars(host.data() + colon + 1, end, own);
  if (read.ec != std::errc() || read.ptr != end || own == 0) return;
  port = own;
  host.resize(colon);
}

/// What a machine may call itself when it greets, and in an address.
std::string OwnName() {
  std::string name = platform::HostName();
  return IsHost(name) ? name : "localhost";
}

/// A step's failure, before what was heard is put into it.
struct Trouble {
  Verdict unanswered = Verdict::kNotReached;  ///< the verdict where the server said nothing
  const char* what;                           ///< "The mail server refused the recipient."
  Field field;
};

class InternetMail : public Transport {
 public:
  std::vector<Step> Steps(const Context& context) override {
    std::vector<Step> steps{FindRecipientStep(request_.to),
                            {"Write the mail", [this](Context& given) { return Compose(given); }},
                            {"Resolve the name", [this](Context& given) { return Resolve(given); }}};
    Add(steps, "Connect", SmtpState::kConnected,
        {Verdict::kNotReached, "The mail server does not take connections.", Field::kSmtpServer});
    Add(steps, "Greeting", SmtpState::kGreeted,
        {Verdict::kNotReached, "What answers there does not greet as a mail server.", Field::kSmtpServer});
    Add(steps, "Introduce", SmtpState::kIntroduced,
        {Verdict::kNotReached, "The mail server does not answer to this machine's name.",
         Field::kSmtpServer});
    steps.push_back({"Encrypt (TLS)", [this](Context& given) { return Encrypt(given); }});
    steps.push_back({"Log in", [this](Context& given) { return LogIn(given); }});
    Add(steps, "Sender", SmtpState::kSenderTaken,
        {Verdict::kNotReached, "The mail server does not take mail from this sender.", Field::kLoginId});
    Add(steps, "Recipient", SmtpState::kRecipientTaken,
        {Verdict::kNotReached, "The mail server does not take mail for this recipient.", Field::kAddress});
    Add(steps, "Data", SmtpState::kDataSent,
        {Verdict::kNotReached, "The mail server does not take the message.", Field::kMessage});
    steps.push_back({"Accepted", [this](Context& given) { return Accept(given); }});
    limit_ = Context::Clock::now() + std::min(context.settings.mail_limit, context.Left());
    return steps;
  }

 private:
  void Add(std::vector<Step>& steps, const char* name, SmtpState state, Trouble trouble) {
    steps.push_back({name, [this, state, trouble](Context&) {
                       return talk_->Reach(state, limit_) ? StepOutcome::Done(Heard(state))
                                                          : Failure(trouble);
                     }});
  }

  std::string Heard(SmtpState state) const {
    return state == SmtpState::kConnected ? talk_->Address() : talk_->ReplyFor(state);
  }

  StepOutcome Compose(const Context& context) {
    if (!IsMailAddress(request_.to))
      return StepOutcome::Failed(Verdict::kRefused, request_.to,
                                 "The recipient's address is no mail address.", Field::kAddress);
    request_.own_name = OwnName();
    request_.login = context.service.Text("loginId");
    request_.password = context.service.Text("password");
    request_.from = Sender(context);
    request_.text = MailText({request_.from, request_.to, context.job.subject, context.job.message,
                              context.job.response.priority, std::chrono::system_clock::now(),
                              MessageId(request_.own_name)});
    return StepOutcome::Done("from " + request_.from);
  }

  std::string Sender(const Context& context) const {
    for (const std::string& address : {context.settings.mail_from, request_.login})
      if (IsMailAddress(address)) return address;
    return "alerting@" + request_.own_name;
  }

  static std::string MessageId(const std::string& host) {
    const std::string id = platform::GUID::Generate().ToString();
    return id.substr(1, id.size() - 2) + '@' + host;
  }

  StepOutcome Resolve(Context& context) {
    request_.host = context.service.Text("smtpServer");
    request_.port = context.settings.smtp_port;
    request_.tls = context.settings.mail_tls;
    SplitPort(request_.host, request_.port);
    if (!IsHost(request_.host))
      return StepOutcome::Failed(Verdict::kNotPossible, request_.host,
                                 request_.host.empty() ? "The service has no mail server."
                                                       : "The name of the mail server cannot be one.",
                                 Field::kSmtpServer);
    talk_ = std::make_unique<SmtpTalk>(request_, context.transcript);
    if (talk_->Reach(SmtpState::kResolved, limit_))
      return StepOutcome::Done(request_.host + ", port " + std::to_string(request_.port));
    return Failure({Verdict::kNotReached, "The name of the mail server is not known.", Field::kSmtpServer});
  }

  StepOutcome Encrypt(const Context& context) {
    const bool reached = talk_->Reach(SmtpState::kEncrypted, limit_);
    if (!reached)
      return Failure({Verdict::kNotReached, "The encryption (TLS) could not be set up with the mail server.",
                      Field::kSmtpServer});
    if (talk_->IsEncrypted())
      return StepOutcome::Done(context.settings.mail_tls == MailTls::kVerified
                                   ? "encrypted, certificate verified"
                                   : "encrypted, certificate not verified");
    return StepOutcome::NotNeeded(
        context.settings.mail_tls == MailTls::kNone ? "switched off" : "the server does not offer it");
  }

  StepOutcome LogIn(const Context&) {
    if (!talk_->Reach(SmtpState::kLoggedIn, limit_))
      return Failure(
          {Verdict::kNotReached, "The mail server refuses the login or its password.", Field::kPassword});
    if (request_.login.empty()) return StepOutcome::NotNeeded("the service has no login");
    if (!talk_->HasLoggedIn()) return StepOutcome::NotNeeded("the server does not offer it");
    return StepOutcome::Done(talk_->IsEncrypted() ? "logged in" : "logged in, without encryption");
  }

  StepOutcome Accept(const Context&) {
    if (talk_->Reach(SmtpState::kAccepted, limit_))
      return StepOutcome::Delivered(talk_->ReplyFor(SmtpState::kAccepted));
    return Failure({Verdict::kNotReached, "The mail server did not accept the message.", Field::kMessage});
  }

  /// A reply of 400 and above is a refusal; anything else is the end of the talk.
  StepOutcome Failure(const Trouble& trouble) const {
    const bool refused = talk_->ReplyCode() >= 400;
    std::string explanation = trouble.what;
    if (refused && talk_->ReplyCode() < 500)
      explanation += " It says that this is so for now: try again later.";
    if (talk_->IsTimedOut()) explanation += " It did not answer in time.";
    return StepOutcome::Failed(refused ? Verdict::kRefused : trouble.unanswered,
                               refused               ? talk_->Reply()
                               : talk_->IsTimedOut() ? "no answer"
                                                     : talk_->Problem(),
                               std::move(explanation), trouble.field);
  }

  SmtpRequest request_;
  std::unique_ptr<SmtpTalk> talk_;
  Context::Clock::time_point limit_;
};

}  // namespace

TransportPtr MakeInternetMail() { return std::make_unique<InternetMail>(); }

}  // namespace alertserver

#else

namespace alertserver {
TransportPtr MakeInternetMail() { return MakeNotPossible("it was built without libcurl, which sends mail."); }
}  // namespace alertserver

#endif
