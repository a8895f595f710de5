// SPDX-License-Identifier: MIT
#include <algorithm>

#include "server/recipient.h"
#include "server/serial/dial_string.h"
#include "server/serial/serial_call.h"
#include "server/serial/serial_transports.h"

namespace alertserver {
namespace {

/// What can be keyed of a message. Spaces and hyphens only part its digits.
std::string Keyed(std::string message) {
  std::erase_if(message, [](char c) { return c == ' ' || c == '-' || c == '\r' || c == '\n'; });
  return message;
}

bool CanBeKeyed(const std::string& message) {
  return !message.empty() && message.find_first_not_of("0123456789*#") == message.npos;
}

/// Calls the pager's number and, when the terminal has had time to answer, keys the message.
class NumericPager : public Transport {
 public:
  explicit NumericPager(LineOpener opener) : call_(std::move(opener)) {}

  std::vector<Step> Steps(const Context&) override {
    return {
        FindRecipientStep(number_),
        {"Write the page", [this](Context& context) { return Compose(context); }},
        {"Open the port", [this](Context& context) { return call_.OpenPort(context, false); }},
        {"Initialise the modem",
         [this](Context& context) {
           return call_.Initialise(context, context.modem->initString, Field::kInitString);
         }},
        {"Dial and key the message", [this](Context& context) { return Dial(context); }},
        {"Hang up", [this](Context& context) { return call_.Close(context); }, true},
    };
  }

 private:
  StepOutcome Compose(Context& context);
  StepOutcome Dial(Context& context);

  SerialCall call_;
  std::string number_, digits_;
};

StepOutcome NumericPager::Compose(Context& context) {
  digits_ = Keyed(context.job.message);
  if (NumberFrom(nullptr, number_).empty())
    return StepOutcome::Failed(Verdict::kNotPossible, "", "The recipient's address is no number to dial.",
                               Field::kAddress);
  if (!CanBeKeyed(digits_))
    return StepOutcome::Failed(Verdict::kNotPossible, context.job.message,
                               "A numeric pager shows digits alone: the message may hold 0 to 9, * and #.",
                               Field::kMessage);
  if (IsDirect(context))
    return StepOutcome::Failed(
        Verdict::kNotPossible, "",
        "A numeric pager is reached by telephone: choose a modem instead of direct port I/O.",
        ModemField(context));
  return StepOutcome::Done(digits_);
}

/// Without the semicolon the modem would wait for another modem, and say that none came when all went well.
StepOutcome NumericPager::Dial(Context& context) {
  const std::string pauses = Pauses(context.service.Number("dialDelay"));
  std::string command = DialCommand(*context.modem, number_, pauses + digits_);
  if (!command.ends_with(';')) command += ';';
  const auto keying = std::chrono::seconds(2) * std::count(command.begin(), command.end(), ',');
  return call_.DialKeyed(context, command, keying, Field::kAddress);
}

}  // namespace

TransportPtr MakeNumericPager(LineOpener opener) { return std::make_unique<NumericPager>(std::move(opener)); }

}  // namespace alertserver
