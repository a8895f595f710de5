// SPDX-License-Identifier: MIT
#include "server/recipient.h"
#include "server/serial/dial_string.h"
#include "server/serial/pager_blocks.h"
#include "server/serial/pager_session.h"
#include "server/serial/serial_call.h"
#include "server/serial/serial_transports.h"

namespace alertserver {
namespace {

/// A message that would take more pages than this is a message for other means.
constexpr std::size_t kMostPages = 20;

/// Calls the paging provider and hands it the message. On a port that is used directly the provider's terminal is at its
/// other end, and nothing is dialed.
class AlphanumericPager : public Transport {
 public:
  explicit AlphanumericPager(LineOpener opener) : call_(std::move(opener)) {}
  std::vector<Step> Steps(const Context&) override;

 private:
  StepOutcome Compose(Context& context);
  StepOutcome Dial(Context& context);
  StepOutcome Greet(Context& context);
  StepOutcome SignOff(Context& context);

  SerialCall call_;
  PagerSession session_;
  std::string pager_;
  std::vector<std::string> pages_;
};

std::vector<Step> AlphanumericPager::Steps(const Context&) {
  return {
      FindRecipientStep(pager_),
      {"Write the page", [this](Context& context) { return Compose(context); }},
      {"Open the port", [this](Context& context) { return call_.OpenPort(context, false); }},
      {"Initialise the modem",
       [this](Context& context) {
         return call_.Initialise(context, context.modem->alphaInitString, Field::kAlphaInitString);
       }},
      {"Dial", [this](Context& context) { return Dial(context); }},
      {"Greeting", [this](Context& context) { return Greet(context); }},
      {"Log in",
       [this](Context& context) {
         Conversation line = call_.Talk(context);
         return session_.LogIn(line);
       }},
      {"Send the message",
       [this](Context& context) {
         Conversation line = call_.Talk(context);
         return session_.Send(line, pager_, pages_);
       }},
      {"Sign off", [this](Context& context) { return SignOff(context); }, true},
      {"Hang up", [this](Context& context) { return call_.Close(context); }, true},
  };
}

StepOutcome AlphanumericPager::Compose(Context& context) {
  pages_ = Pages(PagerText(context.job.message), context.service.Number("maxTextLength"));
  if (PagerText(pager_) != pager_ || pager_.find('\r') != pager_.npos)
    return StepOutcome::Failed(Verdict::kNotPossible, "", "No pager has such an identification.",
                               Field::kAddress);
  if (pages_.size() > kMostPages)
    return StepOutcome::Failed(
        Verdict::kNotPossible, "",
        "The message would take " + std::to_string(pages_.size()) + " pages of this text length.",
        Field::kMaxTextLength);
  if (!IsDirect(context) && NumberFrom(nullptr, context.service.Text("providerPhone")).empty())
    return StepOutcome::Failed(Verdict::kNotPossible, "", "The provider's phone number is missing.",
                               Field::kProviderPhone);
  return StepOutcome::Done(pages_.size() > 1 ? std::to_string(pages_.size()) + " pages" : "");
}

StepOutcome AlphanumericPager::Dial(Context& context) {
  const std::string command = DialCommand(*context.modem, context.service.Text("providerPhone"), "");
  StepOutcome outcome = call_.DialForCarrier(context, command, Field::kProviderPhone);
  session_.Take(call_.Modem().TakeRest());
  return outcome;
}

StepOutcome AlphanumericPager::Greet(Context& context) {
  Conversation line = call_.Talk(context);
  return session_.Greet(line);
}

/// The terminal puts the line down after its goodbye; the modem need not be called back from the call then.
StepOutcome AlphanumericPager::SignOff(Context& context) {
  if (!call_.IsOpen()) return StepOutcome::NotNeeded("The port was not opened.");
  Conversation line = call_.Talk(context);
  StepOutcome outcome = session_.SignOff(line);
  if (session_.HasEnded()) call_.Modem().LostCarrier();
  return outcome;
}

}  // namespace

TransportPtr MakeAlphanumericPager(LineOpener opener) {
  return std::make_unique<AlphanumericPager>(std::move(opener));
}

}  // namespace alertserver
