// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "server/serial/modem_dialogue.h"
#include "server/serial/serial_line.h"
#include "server/transport.h"

namespace alertserver {

/// What the transports over serial ports have in common: the port of the modem that a try uses, and the call over it.
class SerialCall {
 public:
  explicit SerialCall(LineOpener opener) : opener_(std::move(opener)) {}

  /// Opens the port, with the line settings of the service. `pauses`: the device may hold back what it is sent.
  StepOutcome OpenPort(Context& context, bool pauses);
  /// The steps below are not needed where the port is used directly.
  StepOutcome Initialise(Context& context, const std::string& string, Field field);
  StepOutcome DialForCarrier(Context& context, const std::string& command, Field phone_field);
  StepOutcome DialKeyed(Context& context, const std::string& command, Conversation::Limit keying,
                        Field phone_field);
  /// Hangs up and closes the port; safe whatever was reached.
  StepOutcome Close(Context& context);

  bool IsOpen() const { return line_ != nullptr; }
  /// While the port is open.
  Conversation Talk(Context& context) { return Conversation(*line_, context); }
  ModemDialogue& Modem() { return modem_; }
  SerialLine& Line() { return *line_; }

 private:
  const LineOpener opener_;
  std::unique_ptr<SerialLine> line_;
  ModemDialogue modem_;
};

/// The field where the service has the modem of this try.
Field ModemField(const Context& context);
/// True where no modem is between the port and the device.
bool IsDirect(const Context& context);

}  // namespace alertserver
