// SPDX-License-Identifier: MIT
// The laboratory's devices, all with the same bytes: whatever runs on this machine can send them some.
#include <cstdint>
#include <cstdlib>

#include "lab/mail/smtp_session.h"
#include "lab/telephony/modem.h"
#include "lab/traps/trap.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using namespace lab;

/// In pieces, with time between them. Nothing is said without end.
void Talk(Session& session, std::string_view bytes) {
  constexpr std::size_t kPiece = 23;
  std::size_t said = 0;
  Millis now = 0;
  session.Begin(now);
  for (std::size_t at = 0; at < bytes.size() && !session.IsOver(); at += kPiece) {
    session.Take(bytes.substr(at, kPiece), now += 1500);
    said += session.Due(now).size();
  }
  session.HangUp();
  said += session.Due(now + 100'000).size();
  if (said > 1000 + 200 * bytes.size()) std::abort();
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto show = [](const Arrival& arrival) {
    const std::string line = ToJsonLine(arrival, "");
    if (line.find('\n') != line.size() - 1) std::abort();
    if (ToText(arrival, "").find('\x1B') != std::string::npos) std::abort();
  };
  FaultBoard faults;
  SmtpSession mail({}, faults.Of("mail"), show);
  Modem modem({{"5550200"}, {"5550100"}}, {}, {}, faults.Of("modem"), faults.Of("pager"), show);
  PagerTerminal pager({}, faults.Of("pager"), show);
  for (Session* session : std::initializer_list<Session*>{&mail, &modem, &pager}) Talk(*session, bytes);
  const auto trap = DecodeTrap(bytes);
  if (trap && trap->what == "inform" && InformResponse(std::string(bytes), *trap, 0).size() != size)
    std::abort();
  return 0;
}
