// SPDX-License-Identifier: MIT
#include "lab/host/connection.h"

#include <sys/socket.h>

#include <cerrno>

namespace lab {
namespace {

constexpr Millis kLongestSilence = 120'000, kLongestLife = 600'000;
constexpr std::size_t kMostUnsent = std::size_t{256} * 1024;

}  // namespace

Connection::Connection(platform::Descriptor socket, std::unique_ptr<Session> session, Millis now)
    : socket_(std::move(socket)), session_(std::move(session)), opened_(now), heard_(now) {
  session_->Begin(now);
}

short Connection::Wants() const { return static_cast<short>(POLLIN | (unsent_.empty() ? 0 : POLLOUT)); }

void Connection::Ready(short events, Millis now) {
  if ((events & (POLLIN | POLLHUP | POLLERR)) != 0) Read(now);
  if ((events & POLLOUT) != 0) Write();
}

void Connection::Read(Millis now) {
  char bytes[4096];
  const ssize_t count = recv(socket_.Get(), bytes, sizeof bytes, 0);
  if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
  if (count <= 0) {
    is_closed_ = true;
    return;
  }
  heard_ = now;
  session_->Take({bytes, static_cast<std::size_t>(count)}, now);
}

void Connection::Write() {
  const ssize_t count = send(socket_.Get(), unsent_.data(), unsent_.size(), MSG_NOSIGNAL);
  if (count > 0) unsent_.erase(0, static_cast<std::size_t>(count));
  if (count < 0 && errno != EAGAIN && errno != EINTR) is_closed_ = true;
}

bool Connection::Pass(Millis now) {
  unsent_ += session_->Due(now);
  if (!unsent_.empty()) Write();
  if (now - heard_ > kLongestSilence || now - opened_ > kLongestLife || unsent_.size() > kMostUnsent)
    return false;
  return !is_closed_ && !(session_->IsOver() && unsent_.empty());
}

}  // namespace lab
