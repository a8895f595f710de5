// SPDX-License-Identifier: MIT
#include "lab/host/loopback.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstdint>

namespace lab {
namespace {

sockaddr* Generic(sockaddr_in& address) { return reinterpret_cast<sockaddr*>(&address); }

}  // namespace

platform::Descriptor BindLoopback(int kind, int port) {
  platform::Descriptor socket_fd(socket(AF_INET, kind | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
  if (!socket_fd.IsOpen()) return socket_fd;
  const int yes = 1;
  if (kind == SOCK_STREAM) setsockopt(socket_fd.Get(), SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  if (bind(socket_fd.Get(), Generic(address), sizeof address) != 0) return platform::Descriptor();
  if (kind == SOCK_STREAM && listen(socket_fd.Get(), 16) != 0) return platform::Descriptor();
  return socket_fd;
}

int PortOf(const platform::Descriptor& socket_fd) {
  sockaddr_in address{};
  socklen_t size = sizeof address;
  getsockname(socket_fd.Get(), Generic(address), &size);
  return ntohs(address.sin_port);
}

}  // namespace lab
