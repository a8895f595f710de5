// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace alertserver {

/// A notification to one SNMP manager.
struct TrapRequest {
  std::string address;  ///< numeric, IPv4 or IPv6
  std::uint16_t port = 162;
  std::string community;
  std::string enterprise;  ///< the object identifier below which the notification and its variable are
  std::string message;
};

struct InformAnswer {
  enum class Kind { kConfirmed, kRefused, kSilent, kNotSent };
  Kind kind = Kind::kNotSent;
  std::string said;  ///< in the library's words; no community
};

/// Sends an inform (version 2c) and waits for its answer. The calls of all threads take turns.
InformAnswer SendInform(const TrapRequest& request, std::chrono::milliseconds wait);

/// Sends a trap, which nobody answers: of version 2c, or of version 1. Answers why it could not be sent, or "".
std::string SendTrap(const TrapRequest& request, bool version_1);

}  // namespace alertserver
