// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/base/utc_time.h"

namespace alertserver {

struct MailMessage {
  std::string from, to;  ///< addresses that IsMailAddress accepts
  std::string subject, body;
  std::uint16_t priority = 1;  ///< 0 urgent, 1 normal, 2 low
  platform::UtcTime date;
  std::string message_id;  ///< without angle brackets
};

/// True for an address that can stand in a mail's envelope and headers: one "@" at least, and nothing that could end it
/// there (blanks, control characters, angle brackets).
bool IsMailAddress(std::string_view address);

/// The message as it goes over the wire (RFC 5322, MIME): lines end with CR LF, the body is UTF-8, in base64 where it is
/// not plain ASCII of short lines. Nothing in a subject or an address can begin a header of its own.
std::string MailText(const MailMessage& message);

}  // namespace alertserver
