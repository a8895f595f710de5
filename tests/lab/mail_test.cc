// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lab/mail/smtp_session.h"
#include "platform/base/base64.h"

namespace lab {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class SmtpSessionTest : public testing::Test {
 protected:
  std::string Say(const std::string& bytes) {
    session_.Take(bytes, 0);
    return session_.Due(0);
  }
  void Greet() {
    session_.Begin(0);
    ASSERT_THAT(session_.Due(0), StartsWith("220 "));
    ASSERT_THAT(Say("EHLO here\r\n"), HasSubstr("250 AUTH PLAIN LOGIN"));
  }
  void Envelope() {
    ASSERT_THAT(Say("MAIL FROM:<a@here> SIZE=10\r\n"), StartsWith("250 "));
    ASSERT_THAT(Say("rcpt to:<b@there>\r\nRCPT TO:<c@there>\r\n"), StartsWith("250 "));
    ASSERT_THAT(Say("DATA\r\n"), StartsWith("354 "));
  }
  const Arrival& Last() { return arrivals_.back(); }

  MailSetup setup_;
  DeviceFaults faults_{"mail"};
  std::vector<Arrival> arrivals_;
  SmtpSession session_{setup_, faults_, [this](Arrival arrival) { arrivals_.push_back(std::move(arrival)); }};
};

TEST_F(SmtpSessionTest, AMessageArrivesAsItWasBeforeDotsWereAdded) {
  Greet();
  Envelope();
  for (const char byte : std::string("Subject: x\r\n\r\n..one\r\n...\r\nlast\r\n.\r"))
    EXPECT_EQ(Say({byte}), "");
  EXPECT_THAT(Say("\n"), StartsWith("250 "));
  EXPECT_EQ(Last().what, "message");
  EXPECT_EQ(Last().details["text"], "Subject: x\r\n\r\n.one\r\n..\r\nlast\r\n");
  EXPECT_EQ(Last().details["from"], "a@here");
  EXPECT_THAT(Last().details["to"], testing::ElementsAre("b@there", "c@there"));
  EXPECT_THAT(Say("DATA\r\n"), StartsWith("503 ")) << "the next message has an envelope of its own";
}

TEST_F(SmtpSessionTest, CommandsOutOfOrderAndUnknownOnesAreRefusedUntilItIsTooMuch) {
  session_.Begin(0);
  session_.Due(0);
  EXPECT_THAT(Say("MAIL FROM:<a@here>\r\n"), StartsWith("503 "));
  EXPECT_THAT(Say("HELO here\r\nDATA\r\n"), HasSubstr("503 "));
  EXPECT_THAT(Say("MAILFROM:<a@here>\r\n"), StartsWith("500 "));
  EXPECT_THAT(Say("STARTTLS\r\n"), StartsWith("502 "));
  EXPECT_THAT(Say(std::string(100'000, 'x') + "\r\n"), StartsWith("500 "));
  for (int i = 0; i < SmtpSession::kMostErrors; ++i) Say("NONSENSE\r\n");
  EXPECT_TRUE(session_.IsOver());
}

TEST_F(SmtpSessionTest, AMessageThatIsTooLargeIsRefusedAtItsEnd) {
  Greet();
  Envelope();
  const std::string line = std::string(998, 'x') + "\r\n";
  for (std::size_t sent = 0; sent <= SmtpSession::kLargestMessage; sent += line.size())
    ASSERT_EQ(Say(line), "");
  EXPECT_THAT(Say(".\r\n"), StartsWith("552 "));
  EXPECT_NE(Last().what, "message");
}

TEST_F(SmtpSessionTest, FaultsAreWhatTheySay) {
  faults_.Set("recipient-refused:1");
  faults_.Set("rejected:1");
  Greet();
  Say("MAIL FROM:<a@here>\r\n");
  EXPECT_THAT(Say("RCPT TO:<b@there>\r\n"), StartsWith("550 "));
  Say("RSET\r\n");
  Envelope();
  EXPECT_THAT(Say("x\r\n.\r\n"), StartsWith("554 "));
  faults_.Set("tls-broken");
  EXPECT_THAT(Say("EHLO here\r\n"), HasSubstr("250-STARTTLS"));
  EXPECT_THAT(Say("STARTTLS\r\n"), StartsWith("220 "));
  EXPECT_FALSE(session_.IsOver());
  Say("\x16\x03\x01");
  EXPECT_TRUE(session_.IsOver());
}

TEST_F(SmtpSessionTest, ASlowServerAnswersLater) {
  faults_.Set("slow");
  session_.Begin(1000);
  EXPECT_EQ(session_.Due(1000 + setup_.slow - 1), "");
  EXPECT_THAT(session_.Due(1000 + setup_.slow), StartsWith("220 "));
}

class SmtpLoginTest : public SmtpSessionTest {
 protected:
  std::string Plain(const std::string& password) {
    return platform::EncodeBase64(std::string("\0me\0", 4) + password);
  }
  const std::string password_ = "pässword";
  SmtpSession locked_{MailSetup{"me", password_}, faults_,
                      [this](Arrival arrival) { arrivals_.push_back(std::move(arrival)); }};
  std::string SayTo(const std::string& bytes) {
    locked_.Take(bytes, 0);
    return locked_.Due(0);
  }
};

TEST_F(SmtpLoginTest, BothWaysInWorkAndNothingElse) {
  SayTo("EHLO here\r\n");
  EXPECT_THAT(SayTo("MAIL FROM:<a@here>\r\n"), StartsWith("530 "));
  EXPECT_THAT(SayTo("AUTH PLAIN " + Plain("wrong") + "\r\n"), StartsWith("535 "));
  EXPECT_THAT(SayTo("AUTH PLAIN !\r\n"), StartsWith("501 "));
  EXPECT_THAT(SayTo("AUTH CRAM-MD5\r\n"), StartsWith("504 "));
  EXPECT_THAT(SayTo("AUTH PLAIN\r\n"), StartsWith("334 "));
  EXPECT_THAT(SayTo(Plain(password_) + "\r\n"), StartsWith("235 "));
  EXPECT_THAT(SayTo("AUTH LOGIN\r\n"), StartsWith("334 "));
  EXPECT_THAT(SayTo(platform::EncodeBase64("me") + "\r\n"), StartsWith("334 "));
  EXPECT_THAT(SayTo(platform::EncodeBase64(password_) + "\r\n"), StartsWith("235 "));
  EXPECT_THAT(SayTo("MAIL FROM:<a@here>\r\nRCPT TO:<b@there>\r\nDATA\r\nx\r\n.\r\n"), HasSubstr("354 "));
  EXPECT_EQ(Last().details["login"], "me");
  for (const Arrival& arrival : arrivals_)
    EXPECT_EQ(ToJsonLine(arrival, "").find(password_), std::string::npos);
}

}  // namespace
}  // namespace lab
