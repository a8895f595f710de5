// SPDX-License-Identifier: MIT
#ifdef ALERTSERVER_WITH_CURL
#include "server/smtp_talk.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <mutex>

namespace alertserver {
namespace {

void InitialiseOnce() {
  static std::once_flag once;
  std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

bool HasTime(CURL* easy, CURLINFO info) {
  curl_off_t microseconds = 0;
  return curl_easy_getinfo(easy, info, &microseconds) == CURLE_OK && microseconds > 0;
}

std::string_view WithoutLineEnd(std::string_view line) {
  while (line.ends_with('\n') || line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

SmtpTalk::SmtpTalk(const SmtpRequest& request, Transcript& transcript)
    : text_(request.text), transcript_(transcript) {
  InitialiseOnce();
  easy_.reset(curl_easy_init());
  multi_.reset(curl_multi_init());
  SetUp(request);
  curl_multi_add_handle(multi_.get(), easy_.get());
}

/// The library says goodbye to whoever it is connected to, and waits two minutes for the answer of one that is silent.
SmtpTalk::~SmtpTalk() {
  if (!ended_ && socket_ != CURL_SOCKET_BAD) shutdown(socket_, SHUT_RDWR);
}

curl_socket_t SmtpTalk::OpenSocket(void* self, curlsocktype, curl_sockaddr* to) {
  auto& talk = *static_cast<SmtpTalk*>(self);
  talk.socket_ = socket(to->family, to->socktype | SOCK_CLOEXEC, to->protocol);
  return talk.socket_;
}

int SmtpTalk::CloseSocket(void* self, curl_socket_t socket) {
  auto& talk = *static_cast<SmtpTalk*>(self);
  if (talk.socket_ == socket) talk.socket_ = CURL_SOCKET_BAD;
  return close(socket);
}

/// The environment may name proxies; a mail server is not behind them.
void SmtpTalk::SetUp(const SmtpRequest& request) {
  CURL* const easy = easy_.get();
  const std::string url =
      "smtp://" + request.host + ':' + std::to_string(request.port) + '/' + request.own_name;
  recipients_.reset(curl_slist_append(nullptr, request.to.c_str()));
  curl_easy_setopt(easy, CURLOPT_URL, url.c_str());
  curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "smtp");
  curl_easy_setopt(easy, CURLOPT_PROXY, "");
  curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
  curl_easy_setopt(easy, CURLOPT_ERRORBUFFER, error_.data());
  curl_easy_setopt(easy, CURLOPT_VERBOSE, 1L);
  curl_easy_setopt(easy, CURLOPT_DEBUGFUNCTION, &SmtpTalk::Debug);
  curl_easy_setopt(easy, CURLOPT_DEBUGDATA, this);
  curl_easy_setopt(easy, CURLOPT_MAIL_FROM, request.from.c_str());
  curl_easy_setopt(easy, CURLOPT_MAIL_RCPT, recipients_.get());
  curl_easy_setopt(easy, CURLOPT_UPLOAD, 1L);
  curl_easy_setopt(easy, CURLOPT_READFUNCTION, &SmtpTalk::Read);
  curl_easy_setopt(easy, CURLOPT_READDATA, this);
  curl_easy_setopt(easy, CURLOPT_OPENSOCKETFUNCTION, &SmtpTalk::OpenSocket);
  curl_easy_setopt(easy, CURLOPT_OPENSOCKETDATA, this);
  curl_easy_setopt(easy, CURLOPT_CLOSESOCKETFUNCTION, &SmtpTalk::CloseSocket);
  curl_easy_setopt(easy, CURLOPT_CLOSESOCKETDATA, this);
  SetTls(request.tls);
  if (request.login.empty()) return;
  curl_easy_setopt(easy, CURLOPT_USERNAME, request.login.c_str());
  curl_easy_setopt(easy, CURLOPT_PASSWORD, request.password.c_str());
}

void SmtpTalk::SetTls(MailTls tls) {
  const bool verified = tls == MailTls::kVerified;
  const long use = verified ? CURLUSESSL_ALL : tls == MailTls::kOffered ? CURLUSESSL_TRY : CURLUSESSL_NONE;
  curl_easy_setopt(easy_.get(), CURLOPT_USE_SSL, use);
  curl_easy_setopt(easy_.get(), CURLOPT_SSL_VERIFYPEER, verified ? 1L : 0L);
  curl_easy_setopt(easy_.get(), CURLOPT_SSL_VERIFYHOST, verified ? 2L : 0L);
}

bool SmtpTalk::Reach(SmtpState state, Context::Clock::time_point deadline) {
  while (state_ < state && !ended_) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Context::Clock::now());
    if (left.count() <= 0) {
      timed_out_ = true;
      return false;
    }
    Step(left);
  }
  return state_ >= state;
}

/// What was heard before this step is looked at first: one call can take the talk through several states.
void SmtpTalk::Step(std::chrono::milliseconds limit) {
  int running = 0;
  curl_multi_perform(multi_.get(), &running);
  LookAround();
  if (running == 0) {
    int left = 0;
    if (const CURLMsg* message = curl_multi_info_read(multi_.get(), &left)) result_ = message->data.result;
    ended_ = true;
    if (result_ == CURLE_OK) AdvanceByReply(SmtpState::kAccepted);
    return;
  }
  const auto wait = std::min(limit, std::chrono::milliseconds(200));
  curl_multi_poll(multi_.get(), nullptr, 0, static_cast<int>(wait.count()), nullptr);
}

void SmtpTalk::LookAround() {
  if (HasTime(easy_.get(), CURLINFO_NAMELOOKUP_TIME_T)) Advance(SmtpState::kResolved);
  if (HasTime(easy_.get(), CURLINFO_CONNECT_TIME_T)) Advance(SmtpState::kConnected);
  if (!HasTime(easy_.get(), CURLINFO_APPCONNECT_TIME_T)) return;
  encrypted_ = true;
  Advance(SmtpState::kEncrypted);
}

void SmtpTalk::Advance(SmtpState state) { state_ = std::max(state_, state); }

void SmtpTalk::AdvanceByReply(SmtpState state) {
  said_[static_cast<std::size_t>(state)] = reply_;
  Advance(state);
}

void SmtpTalk::OnSent(std::string_view line) {
  constexpr std::pair<std::string_view, Command> kCommands[] = {
      {"EHLO", Command::kEhlo}, {"HELO", Command::kEhlo}, {"STARTTLS", Command::kStartTls},
      {"AUTH", Command::kAuth}, {"MAIL", Command::kMail}, {"RCPT", Command::kRcpt},
      {"DATA", Command::kData}, {"QUIT", Command::kQuit}};
  const auto known = std::ranges::find_if(kCommands, [&](const auto& row) {
    return line.starts_with(row.first) && (line.size() == row.first.size() || line[row.first.size()] == ' ');
  });
  // What is no command answers the server's questions for login and password.
  const bool is_answer = known == std::end(kCommands);
  if (!is_answer) command_ = known->second;
  if (command_ == Command::kAuth) {
    const std::size_t end = is_answer ? 0 : std::min(line.find(' ', 5), line.size());
    transcript_.Sent(std::string(line.substr(0, end)) + (is_answer ? "***" : " ***"));
    return Advance(SmtpState::kEncrypted);
  }
  transcript_.Sent(line);
  if (command_ == Command::kMail) Advance(SmtpState::kLoggedIn);
}

void SmtpTalk::OnReceived(std::string_view line) {
  transcript_.Received(line);
  if (command_ == Command::kQuit) return;  // what was said before counts
  reply_ = reply_ended_ ? std::string(line) : reply_ + ' ' + std::string(line);
  reply_ended_ = line.size() < 4 || line[3] != '-';
  code_ = 0;
  for (const char c : line.substr(0, 3)) code_ = c >= '0' && c <= '9' ? code_ * 10 + (c - '0') : 0;
  if (reply_ended_ && code_ >= 200 && code_ < 400) OnReply();
}

void SmtpTalk::OnReply() {
  switch (command_) {
    case Command::kNone:
      return AdvanceByReply(SmtpState::kGreeted);
    case Command::kEhlo:
      return AdvanceByReply(SmtpState::kIntroduced);
    case Command::kAuth:
      auth_accepted_ = auth_accepted_ || code_ == 235;
      return;
    case Command::kMail:
      return AdvanceByReply(SmtpState::kSenderTaken);
    case Command::kRcpt:
      return AdvanceByReply(SmtpState::kRecipientTaken);
    default:
      return;
  }
}

int SmtpTalk::Debug(CURL*, curl_infotype type, char* data, std::size_t size, void* self) {
  auto& talk = *static_cast<SmtpTalk*>(self);
  const std::string_view line = WithoutLineEnd({data, size});
  if (type == CURLINFO_HEADER_OUT) talk.OnSent(line);
  if (type == CURLINFO_HEADER_IN) talk.OnReceived(line);
  return 0;
}

std::size_t SmtpTalk::Read(char* buffer, std::size_t size, std::size_t count, void* self) {
  auto& talk = *static_cast<SmtpTalk*>(self);
  const std::size_t length = std::min(size * count, talk.text_.size() - talk.read_);
  talk.text_.copy(buffer, length, talk.read_);
  talk.read_ += length;
  if (length == 0) {
    talk.transcript_.Note("the message, " + std::to_string(talk.text_.size()) + " bytes");
    talk.Advance(SmtpState::kDataSent);
  }
  return length;
}

std::string SmtpTalk::Address() const {
  const char* address = nullptr;
  curl_easy_getinfo(easy_.get(), CURLINFO_PRIMARY_IP, &address);
  return address != nullptr ? address : "";
}

std::string SmtpTalk::Problem() const {
  return error_.front() != '\0' ? error_.data() : curl_easy_strerror(result_);
}

}  // namespace alertserver
#endif  // ALERTSERVER_WITH_CURL
