// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/program.h"
#include "tests/support/temporary.h"

namespace trials {

/// A mail as the mail server filed it: what the envelope said, the header's fields, and the body with ends of lines as
/// Unix has them.
struct FiledMail {
  std::string whole, body;

  /// The value of a field of the header, folded as it came; "" where there is none.
  std::string Field(const std::string& name) const;
  std::string Sender() const { return Field("Return-path"); }
  std::string Recipients() const { return Field("Envelope-to"); }
  /// The body without its transfer encoding.
  std::string Text() const;
};

/// The text of a header's field, its encoded words (base64, UTF-8) decoded.
std::string DecodedField(const std::string& value);

/// A mail server of the system's, with a configuration, a spool and mailboxes of its own, on a loopback port. It needs
/// no privileges, encrypts with a certificate that nobody has signed, and files what is for any domain but
/// refused.example.
class MailServer {
 public:
  static constexpr char kProgram[] = "/usr/sbin/exim4";
  static bool IsInstalled();

  /// With a login and its password it takes mail from those alone who have logged in.
  explicit MailServer(const std::string& login = "", const std::string& password = "");

  std::uint16_t Port() const { return port_; }
  /// Whether it answers.
  bool IsReady() const;
  /// All that was filed, once there are so many or seconds have gone by; in no order.
  std::vector<FiledMail> Filed(std::size_t count) const;
  std::string Log() const;

 private:
  std::string Configuration(const std::string& login, const std::string& password) const;

  const test_support::TemporaryDirectory directory_;
  const std::string& root_ = directory_.Path();
  const std::uint16_t port_;
  std::unique_ptr<test_support::Program> program_;
};

}  // namespace trials
