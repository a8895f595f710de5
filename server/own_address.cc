// SPDX-License-Identifier: MIT
#include "server/own_address.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>

#include <memory>

namespace alertserver {
namespace {

struct FreeAddresses {
  void operator()(ifaddrs* list) const { freeifaddrs(list); }
};

bool IsUsable(const ifaddrs& address) {
  return address.ifa_addr != nullptr && address.ifa_addr->sa_family == AF_INET &&
         (address.ifa_flags & IFF_LOOPBACK) == 0 && (address.ifa_flags & IFF_UP) != 0;
}

}  // namespace

std::string OwnAddress() {
  ifaddrs* found = nullptr;
  if (getifaddrs(&found) != 0) return "127.0.0.1";
  const std::unique_ptr<ifaddrs, FreeAddresses> list(found);
  for (const ifaddrs* at = found; at != nullptr; at = at->ifa_next) {
    if (!IsUsable(*at)) continue;
    char text[INET_ADDRSTRLEN] = "";
    const auto* address = reinterpret_cast<const sockaddr_in*>(at->ifa_addr);
    if (inet_ntop(AF_INET, &address->sin_addr, text, sizeof text) != nullptr) return text;
  }
  return "127.0.0.1";
}

}  // namespace alertserver
