// SPDX-License-Identifier: MIT
// Mails as a mail server of the system's takes, decodes and files them, against what was entered.
#include "tests/trials/mail_server.h"

#include <algorithm>

#include "tests/trials/trial_site.h"

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Not;
using trials::FiledMail;
using trials::MailServer;

namespace {

constexpr char kLogin[] = "me@site.example", kPassword[] = "open sesame";

class MailServerTest : public trials::TrialTest {
 protected:
  void SetUp() override {
    if (!MailServer::IsInstalled()) GTEST_SKIP() << "exim4 is not installed";
#ifndef ALERTSERVER_WITH_CURL
    GTEST_SKIP() << "the alert server is built without libcurl";
#endif
    TrialTest::SetUp();
    SetUpMail(kPassword);
    SetAddress("Internet Mail", "ann@example.org");
    ASSERT_TRUE(server_.IsReady()) << server_.Log();
    WriteSettings({{"smtpPort", server_.Port()}});
  }
  json Send(const std::string& subject, const std::string& message, std::uint16_t priority) {
    alertstore::ALERTRESPREC response = ResponseThrough("Internet Mail", 5);
    response.subject.Assign(subject);
    response.message.Assign(message);
    response.priority = priority;
    return Once(response);
  }
  json Send() { return Send("A test", "Only a test.", 1); }

  MailServer server_{kLogin, kPassword};
};

std::string Repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

struct Mail {
  const char *what, *address;
  std::uint16_t priority;
  const char* priority_field;
  std::string subject, message, encoding;
};

const Mail kMails[] = {
    {"plain", "ann@example.org", 1, "3 (Normal)", "Tank 4", "It is overfull.", "7bit"},
    {"dots", "a.b+c@Example.ORG", 0, "1 (Highest)", "100% full.", ".\n..\n...and a line\n.\n\nend.", "7bit"},
    {"like headers", "ann@example.org", 2, "5 (Lowest)",
     "=?UTF-8?B?eA==?=", "From here on\nBcc: none@refused.example\n\nQUIT", "7bit"},
    {"UTF-8", "ann@example.org", 1, "3 (Normal)", "\u00dcberlauf \u2013 Beh\u00e4lter \u96fb\u6c60",
     "\u00dcberlauf im Beh\u00e4lter.\n.\n\U0001F6D1 halt", "base64"},
    {"long words", "ann@example.org", 1, "3 (Normal)", Repeated("\u96fb\u6c60", 40),
     Repeated("\u00e4\u96fb", 400), "base64"},
    {"the longest line", "ann@example.org", 1, "3 (Normal)", std::string(250, 'S'),
     std::string(998, 'x') + "\nend", "7bit"},
    {"a longer line", "ann@example.org", 1, "3 (Normal)", "long",
     std::string(999, 'x') + "\n." + std::string(1000, 'y'), "base64"}};

void Check(const Mail& sent, const FiledMail& mail) {
  EXPECT_EQ(mail.Recipients(), sent.address);
  EXPECT_EQ(mail.Sender(), "<" + std::string(kLogin) + ">");
  EXPECT_EQ(mail.Field("To"), "<" + std::string(sent.address) + ">");
  EXPECT_EQ(mail.Field("From"), "Alerting <" + std::string(kLogin) + ">");
  EXPECT_EQ(trials::DecodedField(mail.Field("Subject")), sent.subject);
  EXPECT_EQ(mail.Field("X-Priority"), sent.priority_field);
  EXPECT_EQ(mail.Field("Content-Transfer-Encoding"), sent.encoding);
  EXPECT_EQ(mail.Text(), sent.message + "\n");  // a mail ends with a line
  EXPECT_THAT(mail.Field("Message-ID"), MatchesRegex("<[0-9A-Fa-f-]+@[^@>]+>"));
  EXPECT_THAT(mail.Field("Date"), MatchesRegex("[A-Z][a-z]+, .* \\+0000"));
  EXPECT_EQ(mail.Field("Bcc"), "");
}

TEST_F(MailServerTest, WhatWasEnteredArrivesByteForByte) {
  std::size_t count = 0;
  std::vector<std::string> known;
  for (const Mail& sent : kMails) {
    SCOPED_TRACE(sent.what);
    SetAddress("Internet Mail", sent.address);
    const json report = Send(sent.subject, sent.message, sent.priority);
    EXPECT_EQ(report["verdict"], "delivered") << report.dump(1) << server_.Log();
    const auto filed = server_.Filed(++count);
    ASSERT_EQ(filed.size(), count) << server_.Log();
    const auto is_new = [&](const FiledMail& mail) {
      return std::ranges::find(known, mail.whole) == known.end();
    };
    const auto mail = std::ranges::find_if(filed, is_new);
    ASSERT_NE(mail, filed.end());
    Check(sent, *mail);
    known.push_back(mail->whole);
  }
}

TEST_F(MailServerTest, AMailIsEncryptedAndLoggedInForWhereTheServerOffersIt) {
  const json report = Report({"entry", "test", "Ann", "Internet Mail", "--message", "Only a test."});
  EXPECT_EQ(report["verdict"], "delivered") << report.dump(1);
  EXPECT_EQ(trials::Said(report, "Encrypt (TLS)"), "encrypted, certificate not verified");
  EXPECT_EQ(trials::Said(report, "Log in"), "logged in");
  // As the server tells it.
  EXPECT_THAT(server_.Log(), AllOf(HasSubstr("P=esmtpsa"), HasSubstr("A=plain:me@site.example")));
}

TEST_F(MailServerTest, WhatTheServerRefusesIsToldInItsWordsAndNotFiled) {
  SetAddress("Internet Mail", "nobody@refused.example");
  const json nobody = Send();
  EXPECT_EQ(nobody["verdict"], "refused") << nobody.dump(1);
  EXPECT_EQ(nobody["field"], "address");
  EXPECT_THAT(trials::Said(nobody, "Recipient"), HasSubstr("nobody lives here"));

  SetAddress("Internet Mail", "ann@example.org");
  SetUpMail("wrong");
  const json login = Send();
  EXPECT_EQ(login["verdict"], "refused") << login.dump(1);
  EXPECT_EQ(login["field"], "password");
  EXPECT_THAT(trials::Said(login, "Log in"), HasSubstr("535"));

  SetUpMail(kPassword);
  WriteSettings({{"smtpPort", server_.Port()}, {"mailTls", "verified"}});
  const json certificate = Send();
  EXPECT_EQ(certificate["verdict"], "notReached") << certificate.dump(1);
  EXPECT_EQ(certificate["field"], "smtpServer");
  EXPECT_EQ(certificate["steps"].back()["name"], "Encrypt (TLS)");
  EXPECT_THAT(server_.Filed(0), IsEmpty());
}

}  // namespace
