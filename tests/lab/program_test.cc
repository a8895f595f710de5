// SPDX-License-Identifier: MIT
// The program as others start it.
#include <arpa/inet.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include "lab/arrival.h"
#include "platform/base/descriptor.h"
#include "tests/lab/laboratory_process.h"

namespace {

platform::Descriptor ConnectTo(const char* host, int port) {
  platform::Descriptor socket_fd(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  inet_pton(AF_INET, host, &address.sin_addr);
  if (connect(socket_fd.Get(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) socket_fd.Close();
  return socket_fd;
}

std::string FirstLine(const platform::Descriptor& socket_fd) {
  char bytes[200];
  const ssize_t count = recv(socket_fd.Get(), bytes, sizeof bytes, 0);
  return {bytes, static_cast<std::size_t>(count < 0 ? 0 : count)};
}

TEST(ProgramTest, EndsCleanlyWhenItIsTold) {
  LaboratoryProcess laboratory;
  ASSERT_FALSE(laboratory.Places().is_null());
  EXPECT_EQ(laboratory.Stop(), 0);
}

TEST(ProgramTest, FaultsChangeWhileItRuns) {
  const LaboratoryProcess laboratory({"--fault", "mail=busy:1"});
  ASSERT_FALSE(laboratory.Places().is_null());
  EXPECT_THAT(FirstLine(ConnectTo("127.0.0.1", laboratory.PortOf("mail"))), testing::StartsWith("421 "));
  EXPECT_THAT(FirstLine(ConnectTo("127.0.0.1", laboratory.PortOf("mail"))), testing::StartsWith("220 "));
  laboratory.Tell("fault mail=greeting-missing");
  for (int tries = 0; tries < 100 && laboratory.Arrivals("mail", "closed without a greeting", 0).empty();
       ++tries)
    FirstLine(ConnectTo("127.0.0.1", laboratory.PortOf("mail")));
  EXPECT_FALSE(laboratory.Arrivals("mail", "closed without a greeting", 1).empty());
}

TEST(ProgramTest, IsReachedOverLoopbackAlone) {
  const LaboratoryProcess laboratory;
  ASSERT_FALSE(laboratory.Places().is_null());
  EXPECT_TRUE(ConnectTo("127.0.0.1", laboratory.PortOf("mail")).IsOpen());
  // Every address of this machine but the one: a listener on all of them would answer.
  EXPECT_FALSE(ConnectTo("127.0.0.2", laboratory.PortOf("mail")).IsOpen());
}

TEST(ProgramTest, ConnectionsAreBounded) {
  const LaboratoryProcess laboratory;
  ASSERT_FALSE(laboratory.Places().is_null());
  std::vector<platform::Descriptor> open;
  std::size_t greeted = 0;
  for (int i = 0; i < 40; ++i) open.push_back(ConnectTo("127.0.0.1", laboratory.PortOf("mail")));
  for (const auto& one : open) greeted += FirstLine(one).empty() ? 0 : 1;
  EXPECT_EQ(greeted, 32U);
  open.clear();
  std::string greeting;
  for (int tries = 0; tries < 100 && greeting.empty(); ++tries)
    greeting = FirstLine(ConnectTo("127.0.0.1", laboratory.PortOf("mail")));
  EXPECT_THAT(greeting, testing::StartsWith("220 "));
}

TEST(ProgramTest, WhatIsPrintedArrivesByteForByte) {
  const LaboratoryProcess laboratory;
  ASSERT_FALSE(laboratory.Places().is_null());
  {
    const platform::Descriptor port(open(laboratory.PathOf("printer").c_str(), O_WRONLY | O_NOCTTY));
    ASSERT_EQ(write(port.Get(), "a\n\r\x03\xFF\f", 6), 6);
  }
  const auto printed = laboratory.Arrivals("printer", "printed", 1);
  ASSERT_EQ(printed.size(), 1U);
  EXPECT_EQ(printed[0]["raw"], "YQoNA/8M");
}

TEST(ArrivalTest, NothingThatATerminalActsOnIsShown) {
  const lab::Arrival arrival{
      "mail", "message", {{"from", "\x1B[2J\xC2\x9B"}, {"text", "one\r\ntw\x07o \xC3\xA4"}}};
  EXPECT_EQ(lab::ToText(arrival, "now"),
            "now  mail  message  from=\"?[2J\xC2?\"\n  text:\n    one\n    tw?o \xC3\xA4\n");
  EXPECT_EQ(lab::ToJsonLine({"x", "y", {{"text", "\xFF"}}}, "now"),
            "{\"time\":\"now\",\"device\":\"x\",\"what\":\"y\",\"text\":\"\xEF\xBF\xBD\"}\n");
}

}  // namespace
