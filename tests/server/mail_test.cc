// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "platform/base/base64.h"
#include "tests/server/smtp_responder.h"
#include "tests/server/test_site.h"

using test_support::Json;
using test_support::SmtpResponder;
using test_support::StepOf;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr char kSecret[] = "MARKED-SECRET-1";

class ServerMail : public testing::Test {
 protected:
  void SetUp() override {
#ifndef ALERTSERVER_WITH_CURL
    GTEST_SKIP() << "the alert server is built without libcurl";
#endif
  }
  void Use(std::uint16_t port, const Json& more = Json::object()) {
    Json settings = {{"smtpPort", port}, {"mailMilliseconds", 1000}};
    settings.update(more);
    site_.WriteSettings(settings);
  }
  void AddService(const std::string& login = "sender@site.example") {
    site_.AddService("internet-mail", 5,
                     {{"smtpServer", "127.0.0.1"}, {"loginId", login}, {"password", kSecret}});
    site_.AddUser("Ann", "ann@example.org");
    site_.response.subject.Assign("Subject %s");
    site_.response.subjectKeywords[0] = 4;
    site_.response.message.Assign("For %s\n.\nend");
    site_.response.messageKeywords[0] = 1;
  }
  /// The report of a mail through a server that answers so.
  Json Send(SmtpResponder::Replies replies, const Json& more = Json::object()) {
    SmtpResponder responder(std::move(replies));
    Use(responder.Port(), more);
    Json report = site_.Serve(++job_);
    commands_ = responder.Commands();
    message_ = responder.Message();
    EXPECT_THAT(report.dump(), AllOf(Not(HasSubstr(kSecret)),
                                     Not(HasSubstr(platform::EncodeBase64(kSecret).substr(0, 16)))));
    return report;
  }

  test_support::TestSite site_;
  std::uint32_t job_ = 0;
  std::string commands_, message_;
};

TEST_F(ServerMail, IsDeliveredWithItsKeywordsAndALogin) {
  AddService();
  testing::internal::CaptureStderr();
  const Json report = Send({});
  const std::string log = testing::internal::GetCapturedStderr();
  EXPECT_THAT(log, AllOf(Not(HasSubstr(kSecret)), HasSubstr("verdict delivered")));
  EXPECT_EQ(report["verdict"], "delivered") << report.dump(1);
  EXPECT_EQ(StepOf(report, "Log in")["said"], "logged in, without encryption");
  EXPECT_EQ(StepOf(report, "Encrypt (TLS)")["result"], "not needed");
  EXPECT_THAT(report["transcript"].get<std::string>(),
              AllOf(HasSubstr("> AUTH PLAIN ***"), HasSubstr("< 235 welcome"),
                    HasSubstr("> RCPT TO:<ann@example.org>")));
  using namespace std::string_literals;
  EXPECT_THAT(commands_, HasSubstr(platform::EncodeBase64("\0sender@site.example\0"s + kSecret))) << "really";
  EXPECT_THAT(message_, AllOf(HasSubstr("Subject: Subject Test\r\n"), HasSubstr("To: <ann@example.org>\r\n"),
                              HasSubstr("\r\n\r\nFor Ann\r\n..\r\nend\r\n")));
}

TEST_F(ServerMail, WithoutALoginNoneIsTried) {
  AddService("");
  const Json report = Send({});
  EXPECT_EQ(report["verdict"], "delivered") << report.dump(1);
  EXPECT_EQ(StepOf(report, "Log in")["result"], "not needed");
  EXPECT_THAT(commands_, Not(HasSubstr("AUTH")));
}

struct Fault {
  const char* command;
  const char* reply;
  const char* step;
  const char* verdict;
  const char* field;
};

TEST_F(ServerMail, EachFaultHasItsStepVerdictAndField) {
  AddService();
  constexpr Fault kFaults[] = {{"greeting", "", "Greeting", "notReached", "smtpServer"},
                               {"greeting", SmtpResponder::kSilence, "Greeting", "notReached", "smtpServer"},
                               {"greeting", "554 go away\r\n", "Greeting", "refused", "smtpServer"},
                               {"greeting", "SSH-2.0-x\r\n", "Greeting", "notReached", "smtpServer"},
                               {"login", "535 wrong MARKED-SECRET-1\r\n", "Log in", "refused", "password"},
                               {"login", "", "Log in", "notReached", "password"},
                               {"MAIL", "550 no\r\n", "Sender", "refused", "loginId"},
                               {"RCPT", "550 nobody\r\n", "Recipient", "refused", "address"},
                               {"RCPT", "450 later\r\n", "Recipient", "refused", "address"},
                               {"RCPT", SmtpResponder::kSilence, "Recipient", "notReached", "address"},
                               {"DATA", "554 no\r\n", "Data", "refused", "message"},
                               {".", "552 too much\r\n", "Accepted", "refused", "message"},
                               {".", "", "Accepted", "notReached", "message"}};
  for (const Fault& fault : kFaults) {
    const Json report = Send({{fault.command, fault.reply}});
    EXPECT_EQ(report["verdict"], fault.verdict) << fault.command << fault.reply << report.dump(1);
    EXPECT_EQ(report["field"], fault.field) << fault.command;
    EXPECT_EQ(report["steps"].back()["name"], fault.step) << fault.command;
    EXPECT_EQ(report["steps"].back()["result"], "failed");
  }
}

TEST_F(ServerMail, EncryptionThatBreaksIsNoReasonToGoOnWithoutIt) {
  AddService();
  const SmtpResponder::Replies offers{{"EHLO", "250-here\r\n250-STARTTLS\r\n250 AUTH PLAIN\r\n"},
                                      {"STARTTLS", "220 no handshake follows\r\nxxxxxxxxxxxxxxxxxxxx\r\n"}};
  const Json broken = Send(offers);
  EXPECT_EQ(broken["verdict"], "notReached") << broken.dump(1);
  EXPECT_EQ(broken["field"], "smtpServer");
  EXPECT_EQ(broken["steps"].back()["name"], "Encrypt (TLS)");
  EXPECT_THAT(commands_, Not(HasSubstr("AUTH")));
  const Json not_offered = Send({}, {{"mailTls", "verified"}});
  EXPECT_EQ(not_offered["steps"].back()["name"], "Encrypt (TLS)") << not_offered.dump(1);
  EXPECT_THAT(commands_, Not(HasSubstr("AUTH")));
  EXPECT_EQ(Send(offers, {{"mailTls", "none"}})["verdict"], "delivered");
}

TEST_F(ServerMail, WhatCannotBeReachedSaysWhichFieldToCorrect) {
  AddService();
  Use(test_support::ClosedPort());
  const Json closed = site_.Serve(++job_);
  EXPECT_EQ(closed["verdict"], "notReached");
  EXPECT_EQ(closed["steps"].back()["name"], "Connect");
  EXPECT_EQ(closed["field"], "smtpServer");
  const auto with_server = [&](const char* server) {
    site_.configuration["services"][0]["settings"]["smtpServer"] = server;
    site_.WriteConfiguration();
    return site_.Serve(++job_);
  };
  for (const char* server : {"", "host/../x", "user@host", "no-such-host.invalid"}) {
    const Json report = with_server(server);
    EXPECT_EQ(report["steps"].back()["name"], "Resolve the name") << server;
    EXPECT_EQ(report["field"], "smtpServer") << server;
  }
  site_.configuration["services"][0]["users"][0]["address"] = "a@b>\r\nDATA";
  EXPECT_EQ(with_server("127.0.0.1")["field"], "address");
  site_.configuration["services"][0]["users"].clear();
  EXPECT_EQ(with_server("127.0.0.1")["field"], "address");
}

}  // namespace
