// SPDX-License-Identifier: MIT
#include "lab/faults.h"

namespace lab {

// Two modems, so that a service with a backup modem can be rehearsed; the pager terminals are behind either.
const std::vector<KnownFault>& KnownFaults() {
  static const std::vector<KnownFault> known = {
      {"mail", "busy", Fault::kBusy, "turns callers away with 421"},
      {"mail", "greeting-missing", Fault::kGreetingMissing, "closes the connection without a word"},
      {"mail", "silent", Fault::kSilent, "takes the connection and never says anything"},
      {"mail", "slow", Fault::kSlow, "takes its time for every answer"},
      {"mail", "wrong-password", Fault::kWrongPassword, "wants a login and accepts none"},
      {"mail", "recipient-refused", Fault::kRecipientRefused, "knows no recipient"},
      {"mail", "rejected", Fault::kRejected, "refuses the message after it has arrived"},
      {"mail", "tls-broken", Fault::kTlsBroken, "offers encryption and breaks it"},
      {"traps", "silent", Fault::kSilent, "answers no inform"},
      {"traps", "slow", Fault::kSlow, "takes its time for every answer"},
      {"traps", "rejected", Fault::kRejected, "answers informs with an error"},
      {"modem", "busy", Fault::kBusy, "the number is engaged"},
      {"modem", "no-carrier", Fault::kNoCarrier, "nobody with a modem answers"},
      {"modem", "no-answer", Fault::kNoAnswer, "nobody answers"},
      {"modem", "no-dial-tone", Fault::kNoDialTone, "no telephone line is plugged in"},
      {"modem", "error", Fault::kError, "knows no command"},
      {"modem", "silent", Fault::kSilent, "is switched off"},
      {"modem", "slow", Fault::kSlow, "takes its time for every answer"},
      {"backup-modem", "busy", Fault::kBusy, "the number is engaged"},
      {"backup-modem", "no-carrier", Fault::kNoCarrier, "nobody with a modem answers"},
      {"backup-modem", "no-answer", Fault::kNoAnswer, "nobody answers"},
      {"backup-modem", "no-dial-tone", Fault::kNoDialTone, "no telephone line is plugged in"},
      {"backup-modem", "error", Fault::kError, "knows no command"},
      {"backup-modem", "silent", Fault::kSilent, "is switched off"},
      {"backup-modem", "slow", Fault::kSlow, "takes its time for every answer"},
      {"pager", "greeting-missing", Fault::kGreetingMissing, "does not ask who is calling"},
      {"pager", "wrong-password", Fault::kWrongPassword, "refuses every login"},
      {"pager", "rejected", Fault::kRejected, "knows no pager of that number"},
      {"pager", "checksum", Fault::kChecksum, "finds every block damaged"},
      {"pager", "silent", Fault::kSilent, "answers no block"},
      {"pager", "slow", Fault::kSlow, "takes its time for every answer"},
      {"printer", "silent", Fault::kSilent, "is switched off: takes nothing from the line"},
      {"printer", "slow", Fault::kSlow, "takes a few bytes at a time"},
  };
  return known;
}

}  // namespace lab
