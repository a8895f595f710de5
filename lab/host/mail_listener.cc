// SPDX-License-Identifier: MIT
#include "lab/host/mail_listener.h"

#include <sys/socket.h>

#include "lab/host/connection.h"

namespace lab {

void MailListener::Ready(short, Millis now) {
  constexpr long kMostConnections = 32;
  platform::Descriptor socket_fd(accept4(socket_.Get(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
  if (!socket_fd.IsOpen() || ticket_.use_count() > kMostConnections) return;
  const auto count = [sink = sink_, ticket = ticket_](Arrival arrival) { sink(std::move(arrival)); };
  auto session = std::make_unique<SmtpSession>(setup_, faults_, count);
  loop_.Add(std::make_unique<Connection>(std::move(socket_fd), std::move(session), now));
}

}  // namespace lab
