// SPDX-License-Identifier: MIT
// Notifications as a trap daemon of the system's takes them, against what was entered.
#include "tests/server/smtp_responder.h"
#include "tests/support/program.h"
#include "tests/trials/trial_site.h"

using test_support::Until;

namespace {

constexpr char kDaemon[] = "/usr/sbin/snmptrapd";
constexpr char kCommunity[] = "night shift";
const std::string kEnterprise = ".1.3.6.1.4.1.32473.7";

/// A notification as the daemon writes it down.
struct Notice {
  std::string kind;       ///< "TRAP2, SNMP v2c, community public"
  std::string trap;       ///< version 1: enterprise, generic and specific number
  std::string variables;  ///< oid = type: value, one behind the other
};

std::string Hex(const std::string& bytes) {
  std::string digits;
  char two[4];
  for (const char byte : bytes) {
    std::snprintf(two, sizeof two, "%02X ", static_cast<unsigned>(static_cast<unsigned char>(byte)));
    digits += two;
  }
  return digits;
}

class TrapDaemonTest : public trials::TrialTest {
 protected:
  void SetUp() override {
    if (access(kDaemon, X_OK) != 0) GTEST_SKIP() << "snmptrapd is not installed";
#ifndef ALERTSERVER_WITH_SNMP
    GTEST_SKIP() << "the alert server is built without net-snmp";
#endif
    TrialTest::SetUp();
    SetUpTraps(kCommunity);
    Start();
  }
  void Start() {
    const std::string configuration = root_ + "/trapd.conf";
    // The ends of lines are the configuration's own.
    std::ofstream(configuration) << "authCommunity log \"" << kCommunity << "\"\n"
                                 << "format1 <%P|%N %w %q|%v>\\n\nformat2 <%P||%v>\\n\n";
    daemon_ = std::make_unique<test_support::Program>(
        std::vector<std::string>{kDaemon, "-f", "-On", "-Ox", "-C", "-c", configuration, "-p", root_ + "/pid",
                                 "-Lf", log_, "udp:127.0.0.1:" + std::to_string(port_)},
        root_ + "/said");
    ASSERT_TRUE(Until([&] { return Read(log_).find("NET-SNMP version") != std::string::npos; }))
        << Read(root_ + "/said");
  }
  static std::string Read(const std::string& path) {
    std::string bytes;
    platform::ReadWholeFile(path, bytes);
    return bytes;
  }
  json Send(const std::string& message, json settings) {
    settings["trapPort"] = port_;
    settings["trapEnterprise"] = kEnterprise.substr(1);
    WriteSettings(settings);
    alertstore::ALERTRESPREC response = ResponseThrough("SNMP Trap", 2);
    response.message.Assign(message);
    return Once(response);
  }
  /// What is behind all that was seen before.
  Notice Next() {
    std::size_t start = 0, end = 0;
    std::string log;
    Until([&] {
      log = Read(log_);
      start = log.find('<', seen_);
      end = log.find(">\n", seen_);
      return start != log.npos && end != log.npos;
    });
    if (start == log.npos || end == log.npos) return {};
    seen_ = end + 1;
    const std::string text = log.substr(start + 1, end - start - 1);
    const std::size_t one = text.find('|'), two = text.find('|', one + 1);
    return {text.substr(0, one), text.substr(one + 1, two - one - 1), text.substr(two + 1)};
  }

  const std::uint16_t port_ = test_support::ClosedPort();
  const std::string log_ = root_ + "/traps";
  std::unique_ptr<test_support::Program> daemon_;
  std::size_t seen_ = 0;
};

/// What stands behind "=" for a variable, without the daemon's own ends of lines.
std::string ValueOf(const Notice& notice, const std::string& oid) {
  const std::size_t at = ("\t" + notice.variables).find("\t" + oid + " = ");
  if (at == std::string::npos) return "no " + oid + " in " + notice.variables;
  std::string value = notice.variables.substr(at + oid.size() + 3);
  value = value.substr(0, value.find('\t'));
  std::erase(value, '\n');
  return value;
}

TEST_F(TrapDaemonTest, WhatWasEnteredArrivesByteForByteInAllThreeKinds) {
  const std::string message = kEnterprise + ".1.1.0", notification = ".1.3.6.1.6.3.1.1.4.1.0";
  std::string every_byte;
  for (char c = '\x01'; c != '\x7F'; ++c) every_byte += c;
  for (const std::string& text :
       {std::string("Tank 4"), std::string("\u00dcberlauf \u96fb\u6c60 \U0001F6D1"), every_byte,
        std::string(127, 'a'), std::string(128, 'b'), std::string(1400, 'c'), std::string(2048, 'd')}) {
    SCOPED_TRACE(text);
    const std::string octets = "Hex-STRING: " + Hex(text);
    EXPECT_EQ(Send(text, {{"informMilliseconds", 5000}})["verdict"], "delivered");
    const Notice inform = Next();
    EXPECT_EQ(inform.kind, "INFORM, SNMP v2c, community " + std::string(kCommunity));
    EXPECT_EQ(ValueOf(inform, notification), "OID: " + kEnterprise + ".0.1");
    EXPECT_EQ(ValueOf(inform, message), octets);

    EXPECT_EQ(Send(text, {{"informMilliseconds", 0}})["verdict"], "sent");
    const Notice trap2 = Next();
    EXPECT_EQ(trap2.kind, "TRAP2, SNMP v2c, community " + std::string(kCommunity));
    EXPECT_EQ(ValueOf(trap2, notification), "OID: " + kEnterprise + ".0.1");
    EXPECT_EQ(ValueOf(trap2, message), octets);

    EXPECT_EQ(Send(text, {{"trapVersion", "1"}})["verdict"], "sent");
    const Notice trap1 = Next();
    EXPECT_EQ(trap1.kind, "TRAP, SNMP v1, community " + std::string(kCommunity));
    EXPECT_EQ(trap1.trap, kEnterprise + " 6 .1");
    EXPECT_EQ(ValueOf(trap1, message), octets);
  }
}

TEST_F(TrapDaemonTest, WhatTheDaemonDoesNotTakeIsNotConfirmed) {
  RunJson({"snmp-manager", "set", "127.0.0.1", "--community-file", Line("day shift")});
  const json report = Send("Tank 4", {{"informMilliseconds", 300}});
  EXPECT_EQ(report["verdict"], "sent") << report.dump(1);
  EXPECT_THAT(trials::Said(report, "Send to Lab"), testing::HasSubstr("not confirmed"));
}

}  // namespace
