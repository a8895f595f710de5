// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

namespace lab {

/// A notification of SNMP version 1 (RFC 1157) or 2c (RFC 3416).
struct Trap {
  std::string what;       ///< "trap" or "inform"
  std::string version;    ///< "1" or "2c"
  std::string community;  ///< as it came; it is what SNMP has for a password
  /// The rest: for version 1 `enterprise`, `agent`, `generic`, `specific` and `uptime`, for 2c `requestId`; for both
  /// `variables`, each an object of `oid`, `type` and `value`.
  nlohmann::ordered_json details;
  /// Where the PDU's tag and the value of its error status stand in the datagram; for informs.
  std::size_t pdu_at = 0, error_at = 0;
};

/// Nothing for a datagram that is no such notification.
std::optional<Trap> DecodeTrap(std::string_view datagram);

/// What the receiver of an inform answers: the same message as a response, with an error status (RFC 3416), 0 for none.
std::string InformResponse(std::string datagram, const Trap& inform, char error_status);

}  // namespace lab
