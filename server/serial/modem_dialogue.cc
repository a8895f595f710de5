// SPDX-License-Identifier: MIT
#include "server/serial/modem_dialogue.h"

namespace alertserver {
namespace {

using Kind = ModemAnswer::Kind;
using Limit = Conversation::Limit;

constexpr Limit kCommand(3'000), kRinging(60'000);
/// Kept back from a call that nobody answers, so that there is time to put the line down.
constexpr Limit kToHangUp(4'000);

StepOutcome Silent() {
  return StepOutcome::Failed(Verdict::kNotReached, "",
                             "The modem does not answer. Is it switched on, and attached to this port?",
                             Field::kComPort);
}

/// A dialed call that did not come about.
StepOutcome NoCall(const std::optional<ModemAnswer>& answer, Field phone_field) {
  if (!answer)
    return StepOutcome::Failed(Verdict::kNotReached, "",
                               "The modem did not say in time what became of the call.", phone_field);
  switch (answer->kind) {
    case Kind::kBusy:
      return StepOutcome::Failed(Verdict::kNotReached, answer->text, "The number is engaged.", phone_field);
    case Kind::kNoAnswer:
      return StepOutcome::Failed(Verdict::kNotReached, answer->text, "Nobody answers at the number.",
                                 phone_field);
    case Kind::kNoCarrier:
      return StepOutcome::Failed(Verdict::kNotReached, answer->text, "No modem answers at the number.",
                                 phone_field);
    case Kind::kBarred:
      return StepOutcome::Failed(Verdict::kNotReached, answer->text,
                                 "The modem may not dial the number again so soon.", phone_field);
    case Kind::kNoDialTone:
      return StepOutcome::Failed(Verdict::kNotReached, answer->text,
                                 "The modem hears no dial tone. Is the telephone line plugged in?",
                                 Field::kComPort);
    case Kind::kError:
      return StepOutcome::Failed(Verdict::kNotReached, answer->text,
                                 "The modem does not know the dial command.", Field::kDialPrefix);
    default:
      return StepOutcome::Failed(
          Verdict::kNotReached, answer->text,
          "The call ended otherwise than such a call does. See what stands around the number.",
          Field::kDialSuffix);
  }
}

}  // namespace

/// A modem that was left at another speed takes the first command to find out this one.
StepOutcome ModemDialogue::Initialise(Conversation& line, const std::string& string, Field field) {
  const std::string command = (string.empty() ? "AT" : string) + "\r";
  std::optional<ModemAnswer> answer;
  for (int tries = 0; tries < 2 && !answer; ++tries)
    answer = line.Say(command) ? line.Await(answers_, kCommand) : std::nullopt;
  if (!answer) return Silent();
  if (answer->kind == Kind::kOk) return StepOutcome::Done(answer->text);
  return StepOutcome::Failed(Verdict::kNotReached, answer->text,
                             "The modem does not take the initialization string.", field);
}

std::optional<ModemAnswer> ModemDialogue::Dial(Conversation& line, const std::string& command, Limit limit) {
  if (!line.Say(command + "\r")) return std::nullopt;
  const Limit most = std::max(line.Left() - kToHangUp, Limit(0));
  auto answer = line.Await(answers_, std::min(limit, most));
  if (!answer) line.Say("\r");  // any character ends an attempt to dial
  return answer;
}

StepOutcome ModemDialogue::DialForCarrier(Conversation& line, const std::string& command, Field phone_field) {
  const auto answer = Dial(line, command, kRinging);
  if (!answer || answer->kind != Kind::kConnect) return NoCall(answer, phone_field);
  is_online_ = true;
  return StepOutcome::Done(answer->text);
}

StepOutcome ModemDialogue::DialKeyed(Conversation& line, const std::string& command, Limit keying,
                                     Field phone_field) {
  const auto answer = Dial(line, command, kRinging + keying);
  is_online_ = answer && answer->kind == Kind::kConnect;
  if (!answer || answer->kind != Kind::kOk) return NoCall(answer, phone_field);
  return StepOutcome::Sent(answer->text);
}

StepOutcome ModemDialogue::HangUp(Conversation& line, const std::string& escape, const std::string& hang_up) {
  constexpr Limit kSilence(1'100), kAnswer(1'500);
  if (is_online_ && !escape.empty()) {
    line.KeepSilent(kSilence);
    line.Say(escape);
    line.KeepSilent(kSilence);
  }
  is_online_ = false;
  if (hang_up.empty()) return StepOutcome::Done("The line is put down by closing the port.");
  line.Say(hang_up + "\r");
  const auto answer = line.Await(answers_, kAnswer);
  if (answer && answer->kind != Kind::kError) return StepOutcome::Done(answer->text);
  return StepOutcome::Failed(
      Verdict::kNotReached, answer ? answer->text : "",
      "The modem did not confirm that it hung up; the port is closed, which ends the call.",
      Field::kHangupString);
}

}  // namespace alertserver
