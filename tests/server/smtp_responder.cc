// SPDX-License-Identifier: MIT
#include "tests/server/smtp_responder.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

namespace test_support {
namespace {

platform::Descriptor Listen(std::uint16_t& port) {
  platform::Descriptor listening(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  bind(listening.Get(), reinterpret_cast<sockaddr*>(&address), size);
  listen(listening.Get(), 4);
  getsockname(listening.Get(), reinterpret_cast<sockaddr*>(&address), &size);
  port = ntohs(address.sin_port);
  return listening;
}

/// Waits for a while, so that no test hangs.
bool IsReadable(int fd) {
  pollfd ready{fd, POLLIN, 0};
  return poll(&ready, 1, 20'000) > 0;
}

std::string Verb(const std::string& line) { return line.substr(0, line.find_first_of(" \r")); }

}  // namespace

SmtpResponder::SmtpResponder(Replies replies)
    : replies_(std::move(replies)), listening_(Listen(port_)), thread_([this] { Serve(); }) {}

SmtpResponder::~SmtpResponder() {
  if (thread_.joinable()) thread_.join();
}

const std::string& SmtpResponder::Commands() {
  if (thread_.joinable()) thread_.join();
  return commands_;
}

const std::string& SmtpResponder::Message() { return Commands(), message_; }

std::string SmtpResponder::ReplyTo(const std::string& command) const {
  if (const auto given = replies_.find(command); given != replies_.end()) return given->second;
  if (command == "greeting") return "220 ready\r\n";
  if (command == "EHLO") return "250-here\r\n250-AUTH PLAIN LOGIN\r\n250 8BITMIME\r\n";
  if (command == "AUTH") return "334 \r\n";
  if (command == "login") return "235 welcome\r\n";
  if (command == "DATA") return "354 go on\r\n";
  return command == "QUIT" ? "221 bye\r\n" : "250 fine\r\n";
}

bool SmtpResponder::Answer(int connection, const std::string& line) {
  if (in_message_ && line != ".\r\n") return message_ += line, true;
  const std::string command = in_message_ ? "." : in_login_ ? "login" : Verb(line);
  if (!in_message_) commands_ += line;
  const std::string reply = ReplyTo(command);
  in_login_ = command == "AUTH" && reply.starts_with('3');
  in_message_ = command == "DATA" && reply.starts_with('3');
  if (reply != kSilence) send(connection, reply.data(), reply.size(), MSG_NOSIGNAL);
  return !reply.empty() && command != "QUIT";
}

void SmtpResponder::Serve() {
  if (!IsReadable(listening_.Get())) return;
  const platform::Descriptor connection(accept4(listening_.Get(), nullptr, nullptr, SOCK_CLOEXEC));
  const std::string greeting = ReplyTo("greeting");
  if (greeting.empty()) return;
  if (greeting != kSilence) send(connection.Get(), greeting.data(), greeting.size(), MSG_NOSIGNAL);
  std::string heard;
  char block[4096];
  while (IsReadable(connection.Get())) {
    const ssize_t count = recv(connection.Get(), block, sizeof block, 0);
    if (count <= 0) return;
    heard.append(block, static_cast<std::size_t>(count));
    for (std::size_t end; (end = heard.find('\n')) != std::string::npos; heard.erase(0, end + 1))
      if (!Answer(connection.Get(), heard.substr(0, end + 1))) return;
  }
}

std::uint16_t ClosedPort() {
  std::uint16_t port = 0;
  Listen(port);
  return port;
}

}  // namespace test_support
