// SPDX-License-Identifier: MIT
#pragma once

#include <curl/curl.h>

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "server/transport.h"

namespace alertserver {

/// What a mail server is asked for.
struct SmtpRequest {
  std::string host;
  std::uint16_t port = 25;
  std::string login, password;  ///< "" for none
  std::string own_name;         ///< this machine, as it greets
  std::string from, to, text;
  MailTls tls = MailTls::kOffered;
};

/// Where a talk with a mail server stands. Each state is behind all before it.
enum class SmtpState {
  kStarted,
  kResolved,
  kConnected,
  kGreeted,
  kIntroduced,
  kEncrypted,
  kLoggedIn,
  kSenderTaken,
  kRecipientTaken,
  kDataSent,
  kAccepted
};

/// A talk with a mail server, which goes on only while somebody waits for its next state. Everything that is said goes
/// into the transcript, but for what logs in.
class SmtpTalk {
 public:
  SmtpTalk(const SmtpRequest& request, Transcript& transcript);
  /// Puts down a talk that has not ended without a farewell.
  ~SmtpTalk();

  /// True once the talk is in that state or beyond; false when it ended before, or time ran out.
  bool Reach(SmtpState state, Context::Clock::time_point deadline);

  bool IsEncrypted() const { return encrypted_; }
  bool HasLoggedIn() const { return auth_accepted_; }
  bool IsTimedOut() const { return timed_out_; }
  /// The last reply before the farewell, its lines joined, and its code; "" and 0 for none.
  const std::string& Reply() const { return reply_; }
  int ReplyCode() const { return code_; }
  /// The reply that brought the talk into a state; "" where none did.
  const std::string& ReplyFor(SmtpState state) const { return said_[static_cast<std::size_t>(state)]; }
  std::string Address() const;
  /// Why the talk ended, in curl's words.
  std::string Problem() const;

 private:
  /// What was last sent.
  enum class Command { kNone, kEhlo, kStartTls, kAuth, kMail, kRcpt, kData, kQuit };
  struct FreeEasy {
    void operator()(CURL* easy) const { curl_easy_cleanup(easy); }
  };
  struct FreeMulti {
    void operator()(CURLM* multi) const { curl_multi_cleanup(multi); }
  };
  struct FreeList {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
  };

  void SetUp(const SmtpRequest& request);
  void SetTls(MailTls tls);
  void Step(std::chrono::milliseconds limit);
  void LookAround();
  void Advance(SmtpState state);
  void AdvanceByReply(SmtpState state);
  void OnSent(std::string_view line);
  void OnReceived(std::string_view line);
  void OnReply();
  static curl_socket_t OpenSocket(void* self, curlsocktype, curl_sockaddr* to);
  static int CloseSocket(void* self, curl_socket_t socket);
  static int Debug(CURL* easy, curl_infotype type, char* data, std::size_t size, void* self);
  static std::size_t Read(char* buffer, std::size_t size, std::size_t count, void* self);

  const std::string text_;
  std::size_t read_ = 0;
  Transcript& transcript_;
  std::array<char, CURL_ERROR_SIZE> error_{};
  SmtpState state_ = SmtpState::kStarted;
  Command command_ = Command::kNone;
  std::array<std::string, static_cast<std::size_t>(SmtpState::kAccepted) + 1> said_;
  std::string reply_;
  bool reply_ended_ = true;
  int code_ = 0;
  bool encrypted_ = false, auth_accepted_ = false, ended_ = false, timed_out_ = false;
  CURLcode result_ = CURLE_OK;
  curl_socket_t socket_ = CURL_SOCKET_BAD;  ///< the last that was opened, while it is open
  std::unique_ptr<curl_slist, FreeList> recipients_;
  std::unique_ptr<CURL, FreeEasy> easy_;
  std::unique_ptr<CURLM, FreeMulti> multi_;
};

}  // namespace alertserver
