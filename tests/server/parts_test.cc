// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "companions/dbconfig/keywords.h"
#include "server/command_line.h"
#include "server/keywords.h"
#include "server/mail_message.h"
#include "server/response_record.h"
#include "server/runner.h"
#include "server/secrets.h"
#include "server/settings.h"
#include "tests/server/test_site.h"

using alertserver::Field;
using alertserver::StepOutcome;
using alertserver::Verdict;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

using Record = alertstore::ALERTRESPREC;
namespace offsets = alertserver::offsets;
static_assert(alertserver::kRecordSize == sizeof(Record));
static_assert(offsets::kPriority == offsetof(Record, priority));
static_assert(offsets::kUserName == offsetof(Record, userName));
static_assert(offsets::kUserNameWidth == sizeof(Record::userName));
static_assert(offsets::kMessage == offsetof(Record, message));
static_assert(offsets::kMessageWidth == sizeof(Record::message));
static_assert(offsets::kSubject == offsetof(Record, subject));
static_assert(offsets::kSubjectWidth == sizeof(Record::subject));
static_assert(offsets::kUserId == offsetof(Record, userId));
static_assert(offsets::kServiceId == offsetof(Record, serviceId));
static_assert(offsets::kMessageKeywords == offsetof(Record, messageKeywords));
static_assert(offsets::kSubjectKeywords == offsetof(Record, subjectKeywords));
static_assert(offsets::kServiceType == offsetof(Record, serviceRecordType));

TEST(ServerKeywords, AreThoseOfTheConsole) {
  const auto rows = alertserver::KeywordRows();
  const auto keywords = dbconfig::Keywords().Keywords();
  ASSERT_EQ(rows.size(), keywords.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i].id, keywords[i].id);
    EXPECT_EQ(rows[i].name, keywords[i].name);
    EXPECT_EQ(rows[i].placeholder, keywords[i].format);
  }
}

TEST(ServerKeywords, FillTextsInTheirOrder) {
  const alertserver::KeywordSources sources{"%s Ann", "HOST", "Site", "10.0.0.1", {}};
  const auto fill = [&](const char* text, alertserver::KeywordIds ids) {
    return alertserver::FillKeywords({text, ids}, sources);
  };
  EXPECT_EQ(fill("%s at 100%: %ld, %s", {1, 11, 4}), "%s Ann at 100%: 0, Test");
  EXPECT_EQ(fill("%s %s %s", {2}), "HOST %s %s") << "no more keywords than the record has";
  EXPECT_EQ(fill("%ld %s", {9, 11}), "%ld 10.0.0.1") << "the next keyword alone is looked for";
  EXPECT_EQ(fill("%s", {200}), "%s") << "an unknown one stands for nothing";
}

TEST(ServerSecrets, AreMaskedTheLongestFirst) {
  alertserver::Secrets secrets;
  secrets.Add("pass");
  secrets.Add("password");
  secrets.Add("");
  EXPECT_EQ(secrets.Mask("password pass cGFzc3dvcmQ= other"), "*** *** *** other");
}

/// Runs steps that answer what is given.
alertserver::RunResult RunAll(const std::vector<std::pair<StepOutcome, bool>>& given) {
  const alertserver::Job job;
  const alertserver::Service service;
  const alertserver::Configuration configuration;
  const alertserver::Settings settings;
  alertserver::Context context{job, service, configuration, settings};
  std::vector<alertserver::Step> steps;
  for (const auto& [outcome, always] : given)
    steps.push_back({"Step", [&outcome = outcome](alertserver::Context&) { return outcome; }, always});
  return RunSteps(steps, context);
}

TEST(ServerRunner, StopsAtTheFirstFailureButHangsUp) {
  const auto result = RunAll(
      {{StepOutcome::Done("hello\r\n\x1B"), false},
       {StepOutcome::Failed(Verdict::kNotReached, "busy", "It was busy.", Field::kAddress).Of("Line 2"),
        false},
       {StepOutcome::Sent(), false},
       {StepOutcome::Failed(Verdict::kRefused, "", "No hanging up."), true}});
  ASSERT_THAT(result.steps, SizeIs(3));
  EXPECT_EQ(result.steps[0].said, "hello\\x0D\\x0A\\x1B");
  EXPECT_EQ(result.steps[1].result, "failed");
  EXPECT_EQ(result.verdict, Verdict::kNotReached);
  EXPECT_EQ(result.field, "address");
  EXPECT_EQ(result.steps[1].field, "address");
  EXPECT_EQ(result.steps[1].record, "Line 2");
  EXPECT_EQ(result.steps[0].field, "") << "a step that went on asks for nothing";
  EXPECT_EQ(result.explanation, "It was busy.");
}

TEST(ServerRunner, ClaimsNoMoreThanStepsDo) {
  EXPECT_EQ(RunAll({{StepOutcome::Done(), false}}).verdict, Verdict::kNotPossible);
  EXPECT_EQ(RunAll({}).verdict, Verdict::kNotPossible);
  EXPECT_EQ(RunAll({{StepOutcome::Delivered(), false}, {StepOutcome::Done(), true}}).verdict,
            Verdict::kDelivered);
  EXPECT_EQ(RunAll({{StepOutcome::Sent(), false}, {StepOutcome::Delivered(), false}}).verdict,
            Verdict::kSent);
  EXPECT_EQ(RunAll({{StepOutcome::Delivered(), false},
                    {StepOutcome::Failed(Verdict::kRefused, "", "No.").AndGoOn(), false},
                    {StepOutcome::Sent(), false}})
                .verdict,
            Verdict::kRefused)
      << "the worst of several receivers counts";
}

TEST(ServerRunner, AStepThatThrowsHasFailed) {
  const alertserver::Job job;
  const alertserver::Service service;
  const alertserver::Configuration configuration;
  const alertserver::Settings settings;
  alertserver::Context context{job, service, configuration, settings};
  const auto result = RunSteps(
      {{"Throw", [](alertserver::Context&) -> StepOutcome { throw std::runtime_error("why"); }}}, context);
  EXPECT_EQ(result.verdict, Verdict::kNotPossible);
  EXPECT_THAT(result.explanation, HasSubstr("\"Throw\""));
}

TEST(ServerSettings, KeepTheirBounds) {
  std::vector<std::string> problems;
  const auto settings = alertserver::ParseSettings(
      R"({"smtpPort": 2525, "trapPort": 0, "mailTls": "maybe", "trapVersion": "1", "informMilliseconds": -1,
          "ports": {"COM2": "/dev/pts/7", "COM3": "relative", "COM4": ""}, "mailFrom": "a\r\nb", "unknown": 1})",
      problems);
  EXPECT_EQ(settings.smtp_port, 2525);
  EXPECT_EQ(settings.trap_port, 162);
  EXPECT_TRUE(settings.trap_version_1);
  EXPECT_EQ(alertserver::DeviceOf(settings, 2), "/dev/pts/7");
  EXPECT_EQ(alertserver::DeviceOf(settings, 4), "");
  EXPECT_EQ(alertserver::DeviceOf(settings, 0), "");
  EXPECT_EQ(alertserver::DeviceOf(settings, 5), "");
  EXPECT_EQ(settings.mail_from, "");
  EXPECT_THAT(problems, SizeIs(5)) << testing::PrintToString(problems);
}

TEST(ServerCommandLine, IsSplitAsItsQuotationMarksSay) {
  const auto split = alertserver::SplitCommandLine("  one \"two words\" a\"b c\"d \"\" \\\"x $HOME;rm\r\n");
  ASSERT_TRUE(split);
  EXPECT_THAT(*split, ElementsAre("one", "two words", "ab cd", "", "\"x", "$HOME;rm"));
  EXPECT_THAT(*alertserver::SplitCommandLine(" \t"), IsEmpty());
  EXPECT_FALSE(alertserver::SplitCommandLine("\"open"));
}

TEST(ServerMailText, NothingBeginsAHeaderOfItsOwn) {
  alertserver::MailMessage message{"a@b", "c@d",    "Hi\r\nBcc: x@y\xC3\xBC", "one\n.\ntwo\r\rthree", 0,
                                   {},    "id@host"};
  const std::string text = MailText(message);
  EXPECT_THAT(text, AllOf(HasSubstr("Subject: =?UTF-8?B?"),
                          HasSubstr("Date: Thu, 01 Jan 1970 00:00:00 +0000\r\n"), HasSubstr("X-Priority: 1"),
                          HasSubstr("\r\n\r\none\r\n.\r\ntwo\r\n\r\nthree\r\n"), Not(HasSubstr("\nBcc"))));
  message.subject = "plain";
  message.body = std::string(999, 'x');
  EXPECT_THAT(MailText(message), AllOf(HasSubstr("Subject: plain\r\n"), HasSubstr("Encoding: base64\r\n")));
  for (const char* address : {"", "@b", "a@", "a b@c", "a@b>\r\nRCPT TO:<x@y", "a@b\n", "nobody"})
    EXPECT_FALSE(alertserver::IsMailAddress(address)) << address;
}

}  // namespace
