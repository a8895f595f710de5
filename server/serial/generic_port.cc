// SPDX-License-Identifier: MIT
#include "server/serial/dial_string.h"
#include "server/serial/serial_call.h"
#include "server/serial/serial_transports.h"

namespace alertserver {
namespace {

/// Writes the message to a port, byte by byte as it is: to a printer, a display, whatever is there.
class GenericPort : public Transport {
 public:
  explicit GenericPort(LineOpener opener) : call_(std::move(opener)) {}

  std::vector<Step> Steps(const Context&) override {
    return {
        {"Open the port", [this](Context& context) { return call_.OpenPort(context, IsDirect(context)); }},
        {"Initialise the modem",
         [this](Context& context) {
           return call_.Initialise(context, context.modem->initString, Field::kInitString);
         }},
        {"Dial", [this](Context& context) { return Dial(context); }},
        {"Write the message", [this](Context& context) { return Write(context); }},
        {"Hang up", [this](Context& context) { return call_.Close(context); }, true},
    };
  }

 private:
  StepOutcome Dial(Context& context);
  StepOutcome Write(Context& context);

  SerialCall call_;
};

/// The service has no number of its own: behind a modem it can only be in the modem's dial strings.
StepOutcome GenericPort::Dial(Context& context) {
  const ModemLink& modem = *context.modem;
  if (!IsDirect(context) && NumberFrom(nullptr, modem.dialPrefix + modem.dialSuffix).empty())
    return StepOutcome::Failed(
        Verdict::kNotPossible, "",
        "A generic port has no number to dial: choose a modem for direct port I/O, or give one "
        "whose dialing prefix holds the number.",
        Field::kDialPrefix);
  return call_.DialForCarrier(context, DialCommand(modem, "", ""), Field::kDialPrefix);
}

StepOutcome GenericPort::Write(Context& context) {
  constexpr Conversation::Limit kLimit(20'000);
  const std::string& message = context.job.message;
  if (message.empty())
    return StepOutcome::Failed(Verdict::kNotPossible, "", "There is nothing to write: the message is empty.",
                               Field::kMessage);
  context.transcript.Sent(message);
  if (!call_.Line().Write(message, std::min(kLimit, context.Left())))
    return StepOutcome::Failed(Verdict::kNotReached, "",
                               "The device does not take what is written to the port.", Field::kComPort);
  return StepOutcome::Sent(std::to_string(message.size()) + " bytes written");
}

}  // namespace

TransportPtr MakeGenericPort(LineOpener opener) { return std::make_unique<GenericPort>(std::move(opener)); }

}  // namespace alertserver
