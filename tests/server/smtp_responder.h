// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <thread>

#include "platform/base/descriptor.h"

namespace test_support {

/// A mail server for one connection on a loopback port, on a thread of its own. It answers as a plain one does, but for
/// the commands whose replies are given ("login" is the password's line, "." the message's end); an empty reply closes the connection, kSilence answers nothing.
class SmtpResponder {
 public:
  using Replies = std::map<std::string, std::string>;
  static constexpr char kSilence[] = "silence";

  explicit SmtpResponder(Replies replies = {});
  ~SmtpResponder();

  std::uint16_t Port() const { return port_; }
  /// Waits for the connection's end; the commands, one a line, and the message's lines as they came.
  const std::string& Commands();
  const std::string& Message();

 private:
  void Serve();
  /// False when the connection is to be closed.
  bool Answer(int connection, const std::string& line);
  std::string ReplyTo(const std::string& command) const;

  const Replies replies_;
  std::uint16_t port_ = 0;
  platform::Descriptor listening_;
  std::string commands_, message_;
  bool in_login_ = false, in_message_ = false;
  std::thread thread_;
};

/// A loopback port that nobody listens on.
std::uint16_t ClosedPort();

}  // namespace test_support
