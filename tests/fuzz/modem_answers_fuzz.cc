// SPDX-License-Identifier: MIT
// What is attached to a port need not be a modem. A whole call is had with it, and there is a carrier only where it said so.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "server/serial/modem_dialogue.h"
#include "tests/fuzz/replies.h"
#include "tests/serial/scripted_line.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using namespace alertserver;
using Kind = StepOutcome::Kind;

bool SaysConnect(std::string_view bytes) {
  return bytes.find("CONNECT") != bytes.npos || bytes.find_first_of("15") != bytes.npos;
}

bool SaysOk(std::string_view bytes) {
  return bytes.find("OK") != bytes.npos || bytes.find('0') != bytes.npos;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view all(reinterpret_cast<const char*>(data), size);
  ScriptedTalk carrier(RepliesIn(data, size)), keyed(RepliesIn(data, size));
  ModemDialogue modem, other;
  if (modem.Initialise(carrier.talk, "ATZ", Field::kInitString).kind == Kind::kDone && !SaysOk(all))
    std::abort();
  const StepOutcome call = modem.DialForCarrier(carrier.talk, "ATDT1", Field::kProviderPhone);
  if (call.kind == Kind::kDone && !SaysConnect(all)) std::abort();
  if (call.kind == Kind::kFailed && (call.explanation.empty() || call.field == Field::kNothing)) std::abort();
  if (modem.TakeRest().size() > 2048) std::abort();
  modem.HangUp(carrier.talk, "+++", "ATH0");
  const StepOutcome sent = other.DialKeyed(keyed.talk, "ATDT1,,2;", {}, Field::kAddress);
  if (sent.kind == Kind::kDone && (sent.verdict != Verdict::kSent || !SaysOk(all))) std::abort();
  return 0;
}
