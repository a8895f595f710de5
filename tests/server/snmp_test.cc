// SPDX-License-Identifier: MIT
#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <thread>

#include "platform/base/descriptor.h"
#include "tests/server/test_site.h"

using namespace std::string_literals;
using test_support::Json;
using test_support::StepOf;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

namespace {

constexpr char kInform = '\xA6', kTrap2 = '\xA7', kTrap1 = '\xA4', kResponse = '\xA2';

/// An SNMP manager on a loopback port.
class Receiver {
 public:
  explicit Receiver(bool answers)
      : socket_(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)), answers_(answers) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    bind(socket_.Get(), reinterpret_cast<sockaddr*>(&address), size);
    getsockname(socket_.Get(), reinterpret_cast<sockaddr*>(&address), &size);
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { Receive(); });
  }
  ~Receiver() { Packets(); }
  std::uint16_t Port() const { return port_; }
  /// Ends the receiver; what came.
  const std::vector<std::string>& Packets() {
    stop_ = true;
    if (thread_.joinable()) thread_.join();
    return packets_;
  }

 private:
  void Receive() {
    while (!stop_) {
      pollfd ready{socket_.Get(), POLLIN, 0};
      if (poll(&ready, 1, 20) <= 0) continue;
      char bytes[2048];
      sockaddr_in from{};
      socklen_t size = sizeof from;
      const ssize_t count =
          recvfrom(socket_.Get(), bytes, sizeof bytes, 0, reinterpret_cast<sockaddr*>(&from), &size);
      if (count <= 0) continue;
      packets_.emplace_back(bytes, static_cast<std::size_t>(count));
      std::string answer = packets_.back();
      const std::size_t tag = answer.find(kInform);
      if (!answers_ || tag == std::string::npos) continue;
      answer[tag] = kResponse;
      sendto(socket_.Get(), answer.data(), answer.size(), 0, reinterpret_cast<sockaddr*>(&from), size);
    }
  }

  platform::Descriptor socket_;
  const bool answers_;
  std::uint16_t port_ = 0;
  std::vector<std::string> packets_;
  std::atomic<bool> stop_ = false;
  std::thread thread_;
};

class ServerSnmp : public testing::Test {
 protected:
  void SetUp() override {
#ifndef ALERTSERVER_WITH_SNMP
    GTEST_SKIP() << "the alert server is built without net-snmp";
#endif
    site_.AddService("snmp-trap", 2);
    site_.response.message.Assign("It is %s \xC3\xBC");
    site_.response.messageKeywords[0] = 4;
    AddManager("FIRST", "127.0.0.1");
  }
  void AddManager(const char* computer, const char* address, bool enabled = true) {
    site_.configuration["snmpManagers"].push_back({{"computer", computer},
                                                   {"address", address},
                                                   {"community", "MARKED-SECRET-2"},
                                                   {"enabled", enabled}});
    site_.WriteConfiguration();
  }
  Json Send(const Receiver& receiver, Json more = Json::object()) {
    more["trapPort"] = receiver.Port();
    if (!more.contains("informMilliseconds")) more["informMilliseconds"] = 200;
    site_.WriteSettings(more);
    Json report = site_.Serve(++job_);
    EXPECT_THAT(report.dump(), Not(HasSubstr("MARKED-SECRET")));
    return report;
  }
  test_support::TestSite site_;
  std::uint32_t job_ = 0;
};

TEST_F(ServerSnmp, AnAnsweredInformIsConfirmed) {
  Receiver receiver(true);
  const Json report = Send(receiver);
  EXPECT_EQ(report["verdict"], "delivered") << report.dump(1);
  EXPECT_THAT(StepOf(report, "Send to FIRST")["said"].get<std::string>(), HasSubstr("confirmed"));
  ASSERT_THAT(receiver.Packets(), SizeIs(1));
  const std::string& packet = receiver.Packets().front();
  EXPECT_EQ(packet.substr(2, 3), "\x02\x01\x01"s) << "version 2c";
  EXPECT_THAT(packet, AllOf(HasSubstr("MARKED-SECRET-2"), HasSubstr("\x04\x0DIt is Test \xC3\xBC")));
  EXPECT_TRUE(packet.ends_with("\x04\x0DIt is Test \xC3\xBC")) << "the message is the last variable";
  EXPECT_THAT(packet, HasSubstr("\x06\x0E\x2B\x06\x01\x04\x01\xBF\x08\xCE\x0F\xCE\x0F\x01\x01"s))
      << "its name";
}

TEST_F(ServerSnmp, ATrapFollowsAnInformThatNobodyAnswers) {
  Receiver receiver(false);
  const Json report = Send(receiver);
  EXPECT_EQ(report["verdict"], "sent") << report.dump(1);
  ASSERT_THAT(receiver.Packets(), SizeIs(2));
  EXPECT_NE(receiver.Packets()[0].find(kInform), std::string::npos);
  EXPECT_NE(receiver.Packets()[1].find(kTrap2), std::string::npos);
  EXPECT_TRUE(receiver.Packets()[1].ends_with("It is Test \xC3\xBC"));
}

TEST_F(ServerSnmp, Version1AndTrapsAloneAreChosenInTheSettings) {
  Receiver receiver(true);
  EXPECT_EQ(Send(receiver, {{"trapVersion", "1"}})["verdict"], "sent");
  EXPECT_EQ(Send(receiver, {{"informMilliseconds", 0}})["verdict"], "sent");
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  ASSERT_THAT(receiver.Packets(), SizeIs(2));
  EXPECT_EQ(receiver.Packets()[0].substr(2, 3), "\x02\x01\0"s);
  EXPECT_NE(receiver.Packets()[0].find(kTrap1), std::string::npos);
  EXPECT_NE(receiver.Packets()[1].find(kTrap2), std::string::npos);
}

TEST_F(ServerSnmp, EachManagerHasARowAndTheWorstCounts) {
  AddManager("GONE", "no-such-host.invalid");
  AddManager("OFF", "127.0.0.1", false);
  AddManager("localhost", "");
  Receiver receiver(true);
  const Json report = Send(receiver);
  EXPECT_EQ(report["verdict"], "notReached") << report.dump(1);
  EXPECT_EQ(report["field"], "snmpManagers.address");
  EXPECT_EQ(test_support::Results(report), "done, failed, not needed, done");
  site_.configuration["snmpManagers"].clear();
  site_.WriteConfiguration();
  EXPECT_EQ(Send(receiver)["verdict"], "notPossible");
}

}  // namespace
