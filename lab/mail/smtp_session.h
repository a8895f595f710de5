// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lab/arrival.h"
#include "lab/faults.h"
#include "lab/line_reader.h"
#include "lab/session.h"

namespace lab {

/// How the mail server is set up. With a login, senders that know none or another are refused; without, any will do.
struct MailSetup {
  std::string login, password;
  Millis slow = 2000;  ///< how long a slow server thinks
};

/// One connection to a mail server that delivers nothing (RFC 5321; logins as in RFC 4954).
class SmtpSession : public Session {
 public:
  static constexpr std::size_t kLongestLine = 2048;
  static constexpr std::size_t kLargestMessage = std::size_t{1024} * 1024;
  static constexpr std::size_t kMostRecipients = 100;
  static constexpr int kMostErrors = 20;

  SmtpSession(const MailSetup& setup, DeviceFaults& faults, ArrivalSink sink)
      : setup_(setup), faults_(faults), sink_(std::move(sink)) {}

  void Begin(Millis now) override;
  void Take(std::string_view bytes, Millis now) override;

 private:
  enum class Stage { kCommands, kPlain, kLogin, kPassword, kData, kBroken };
  using Handler = void (SmtpSession::*)(std::string_view argument);
  struct Command {
    const char* word;
    Handler handler;
  };
  static const Command kCommands[];

  void TakeLine(const std::string& line);
  void Obey(std::string_view line);
  void Hello(std::string_view argument);
  void ExtendedHello(std::string_view argument);
  void StartTls(std::string_view argument);
  void Authenticate(std::string_view argument);
  void Mail(std::string_view argument);
  void Recipient(std::string_view argument);
  void Data(std::string_view argument);
  void Reset(std::string_view argument);
  void Nothing(std::string_view argument);
  void Quit(std::string_view argument);

  void TakePlain(std::string_view text);
  void CheckLogin(const std::string& login, const std::string& password);
  bool NeedsLogin() const;
  void TakeDataLine(const std::string& line);
  void EndOfData();
  void Forget();
  void Reply(const std::string& text);
  void Refuse(const std::string& text);
  void Note(const std::string& what);

  const MailSetup setup_;
  DeviceFaults& faults_;
  const ArrivalSink sink_;
  LineReader lines_{kLongestLine};
  Stage stage_ = Stage::kCommands;
  Millis now_ = 0;
  int errors_ = 0;
  std::string helo_, login_, asked_login_, sender_, data_;
  bool has_sender_ = false, is_too_large_ = false, is_logged_in_ = false;
  std::vector<std::string> recipients_;
};

}  // namespace lab
