// SPDX-License-Identifier: MIT
#include "lab/host/trap_socket.h"

#include <sys/socket.h>

#include "lab/traps/trap.h"

namespace lab {

void TrapSocket::Ready(short, Millis now) {
  std::string datagram(65536, '\0');
  sockaddr_in from{};
  socklen_t size = sizeof from;
  const ssize_t count =
      recvfrom(socket_.Get(), datagram.data(), datagram.size(), 0, reinterpret_cast<sockaddr*>(&from), &size);
  if (count < 0) return;
  datagram.resize(static_cast<std::size_t>(count));
  Take(datagram, from, now);
}

/// An authorizationError where informs are to be refused (RFC 3416, 3).
void TrapSocket::Take(const std::string& datagram, const sockaddr_in& from, Millis now) {
  constexpr char kNoError = 0, kAuthorizationError = 16;
  constexpr std::size_t kMostAnswers = 100;
  const auto trap = DecodeTrap(datagram);
  if (!trap) return sink_({faults_.Device(), "not understood", {{"bytes", datagram.size()}}});
  const bool is_known = setup_.community.empty() || trap->community == setup_.community;
  nlohmann::ordered_json details = {{"version", trap->version}, {"community", trap->community}};
  details.update(trap->details);
  sink_({faults_.Device(), is_known ? trap->what : "unknown community", std::move(details)});
  if (!is_known || trap->what != "inform" || faults_.Use(Fault::kSilent) || answers_.size() >= kMostAnswers)
    return;
  const char error = faults_.Use(Fault::kRejected) ? kAuthorizationError : kNoError;
  answers_.push_back(
      {now + (faults_.Has(Fault::kSlow) ? setup_.slow : 0), from, InformResponse(datagram, *trap, error)});
}

bool TrapSocket::Pass(Millis now) {
  for (; !answers_.empty() && answers_.front().at <= now; answers_.pop_front()) {
    const auto& [at, to, datagram] = answers_.front();
    sendto(socket_.Get(), datagram.data(), datagram.size(), 0, reinterpret_cast<const sockaddr*>(&to),
           sizeof to);
  }
  return true;
}

}  // namespace lab
