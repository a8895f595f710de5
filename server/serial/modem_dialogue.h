// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "server/serial/conversation.h"
#include "server/serial/modem_answers.h"

namespace alertserver {

/// A call over a modem, from its first command to its last.
class ModemDialogue {
 public:
  /// Sends an initialization string, "AT" where the record has none. `field` is where the record has it.
  StepOutcome Initialise(Conversation& line, const std::string& string, Field field);

  /// Dials, and waits for the modem on the other side. `phone_field` is where the number comes from.
  StepOutcome DialForCarrier(Conversation& line, const std::string& command, Field phone_field);
  /// Dials what a terminal for keyed digits hears; `command` keeps the modem in its command state. No modem can tell
  /// whether the terminal heard it.
  StepOutcome DialKeyed(Conversation& line, const std::string& command, Conversation::Limit keying,
                        Field phone_field);

  /// Gives the line back, whatever state the call is in.
  StepOutcome HangUp(Conversation& line, const std::string& escape, const std::string& hang_up);

  /// What the other side said right behind the modem's answer.
  std::string TakeRest() { return answers_.TakeRest(); }
  bool IsOnline() const { return is_online_; }
  /// The other side put the line down.
  void LostCarrier() { is_online_ = false; }

 private:
  std::optional<ModemAnswer> Dial(Conversation& line, const std::string& command, Conversation::Limit limit);

  ModemAnswers answers_;
  bool is_online_ = false;
};

}  // namespace alertserver
