// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

namespace alertserver {

/// How mail goes over the wire.
enum class MailTls {
  kOffered,   ///< encrypted where the server offers it, whoever signed its certificate
  kVerified,  ///< encrypted, with a certificate that verifies, or not at all
  kNone
};

/// What sets this server up, from `alertserver.json` in the data directory; docs/alert-server.md has each member. What is
/// missing there has the value it has here.
struct Settings {
  /// The devices behind COM1 to COM4; "" for a port that is not there.
  std::array<std::string, 4> com_ports{"/dev/ttyS0", "/dev/ttyS1", "/dev/ttyS2", "/dev/ttyS3"};

  std::uint16_t smtp_port = 25;
  std::chrono::milliseconds mail_limit{40'000};  ///< for a whole mail
  MailTls mail_tls = MailTls::kOffered;
  std::string
      mail_from;  ///< the sender's address; "" for the login where it is one, else alerting@<this machine>

  std::uint16_t trap_port = 162;
  bool trap_version_1 = false;
  std::chrono::milliseconds inform_wait{1'500};  ///< for the answer to an inform; 0 to send traps only
  std::string trap_enterprise = "1.3.6.1.4.1.8072.9999.9999";

  std::chrono::milliseconds program_limit{20'000};
  std::chrono::milliseconds sound_limit{30'000};

  std::string site_name;  ///< for "<Site Name>"; "" for the alert manager's name
};

/// Reads the settings. What cannot be used keeps its default and is told in `problems`, one sentence each.
Settings ReadSettings(const std::string& path, std::vector<std::string>& problems);
/// The same, from the file's text.
Settings ParseSettings(const std::string& text, std::vector<std::string>& problems);

/// The device behind a port, counted from 1 as records do; "" where there is none.
std::string DeviceOf(const Settings& settings, std::uint32_t com_port);

}  // namespace alertserver
