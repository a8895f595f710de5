// SPDX-License-Identifier: MIT
// The message itself.
#include "lab/mail/smtp_session.h"
#include "platform/base/base64.h"

namespace lab {

/// A line that begins with a dot came with one more, so that it does not end the message (RFC 5321, 4.5.2).
void SmtpSession::TakeDataLine(const std::string& line) {
  if (line == ".") return EndOfData();
  const std::string_view whole = std::string_view(line).substr(line.starts_with('.') ? 1 : 0);
  is_too_large_ |= lines_.WasCut() || data_.size() + whole.size() + 2 > kLargestMessage;
  if (!is_too_large_) data_.append(whole).append("\r\n");
}

void SmtpSession::EndOfData() {
  stage_ = Stage::kCommands;
  if (is_too_large_) {
    Refuse("552 5.3.4 The message is too large");
  } else if (faults_.Use(Fault::kRejected)) {
    Refuse("554 5.6.0 The message is not wanted here");
  } else {
    sink_({faults_.Device(),
           "message",
           {{"from", sender_},
            {"to", recipients_},
            {"login", login_},
            {"text", data_},
            {"raw", platform::EncodeBase64(data_)}}});
    Reply("250 2.0.0 Message accepted");
  }
  Forget();
}

}  // namespace lab
