// SPDX-License-Identifier: MIT
#include "server/serial/serial_call.h"

namespace alertserver {
namespace {

StepOutcome NotPossible(std::string why, Field field) {
  return StepOutcome::Failed(Verdict::kNotPossible, "", std::move(why), field);
}

StepOutcome NoPrefix() {
  return NotPossible("The modem has no dialing prefix string, such as ATDT, which tells it to dial.",
                     Field::kDialPrefix);
}

/// Why a port cannot be opened before anything was tried.
std::optional<StepOutcome> WhatIsMissing(const Context& context, const std::string& device) {
  const ModemLink* modem = context.modem;
  if (modem == nullptr) return NotPossible("No modem is chosen for the service.", ModemField(context));
  if (!modem->is_known)
    return NotPossible("The modem \"" + modem->modemName + "\" was deleted. Choose another.",
                       ModemField(context));
  if (!modem->enabled)
    return NotPossible("The modem \"" + modem->modemName + "\" is switched off in its properties.",
                       Field::kModemEnabled);
  if (device.empty())
    return NotPossible("No device is set for COM" + std::to_string(modem->comPort) + " on this server.",
                       Field::kComPort);
  return std::nullopt;
}

/// The script of a modem is for other alert managers; who wrote one is told that it did not run.
std::string Found(const std::string& device, const ModemLink& modem) {
  return device + (modem.scriptFile.empty() ? "" : "; the script file is not run by this server");
}

}  // namespace

Field ModemField(const Context& context) {
  const auto& backup = context.service.backupModem;
  return backup && &*backup == context.modem ? Field::kBackupModem : Field::kModem;
}

bool IsDirect(const Context& context) {
  return context.modem != nullptr && context.modem->capabilities == kDirectPort;
}

StepOutcome SerialCall::OpenPort(Context& context, bool pauses) {
  const std::string device =
      context.modem == nullptr ? "" : DeviceOf(context.settings, context.modem->comPort);
  if (auto missing = WhatIsMissing(context, device)) return *missing;
  const ModemLink& modem = *context.modem;
  LineProblem problem;
  line_ = opener_(device, {modem.baudRate, modem.dataBits, modem.stopBitsCode, modem.parityCode, pauses},
                  problem);
  if (line_ == nullptr) return StepOutcome::Failed(Verdict::kNotReached, "", problem.text, problem.field);
  return StepOutcome::Done(Found(device, modem));
}

StepOutcome SerialCall::Initialise(Context& context, const std::string& string, Field field) {
  if (IsDirect(context)) return StepOutcome::NotNeeded("The port is used directly.");
  Conversation line = Talk(context);
  return modem_.Initialise(line, string, field);
}

StepOutcome SerialCall::DialForCarrier(Context& context, const std::string& command, Field phone_field) {
  if (IsDirect(context)) return StepOutcome::NotNeeded("The port is used directly.");
  if (context.modem->dialPrefix.empty()) return NoPrefix();
  Conversation line = Talk(context);
  return modem_.DialForCarrier(line, command, phone_field);
}

StepOutcome SerialCall::DialKeyed(Context& context, const std::string& command, Conversation::Limit keying,
                                  Field phone_field) {
  if (context.modem->dialPrefix.empty()) return NoPrefix();
  Conversation line = Talk(context);
  return modem_.DialKeyed(line, command, keying, phone_field);
}

StepOutcome SerialCall::Close(Context& context) {
  if (line_ == nullptr) return StepOutcome::NotNeeded("The port was not opened.");
  Conversation line = Talk(context);
  StepOutcome outcome = IsDirect(context)
                            ? StepOutcome::Done()
                            : modem_.HangUp(line, context.modem->escapeString, context.modem->hangupString);
  line_.reset();
  return outcome;
}

}  // namespace alertserver
