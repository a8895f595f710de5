// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace alertserver {

/// What became of a test, from the best to the worst. Of several receivers the worst counts.
enum class Verdict {
  kDelivered,   ///< the next hop has said that it took the message
  kSent,        ///< sent off; nobody confirms that it arrived
  kRefused,     ///< the other side was reached and said no
  kNotReached,  ///< no connection, no answer, or the answer broke off
  kNotPossible  ///< this server has no means to send such a message, or is not set up for it
};

/// The word for a verdict in a report's file (docs/spool.md).
std::string_view WordOf(Verdict verdict);

/// True when, as far as anybody can know, the message is on its way.
constexpr bool IsSuccess(Verdict verdict) { return verdict <= Verdict::kSent; }

}  // namespace alertserver
