// SPDX-License-Identifier: MIT
#include "server/serial/pager_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/serial/scripted_line.h"

namespace alertserver {
namespace {

using Kind = StepOutcome::Kind;
using testing::ElementsAre;

constexpr char kLoggedIn[] = "\x06\r\x1B[p\r";

struct Sent {
  StepOutcome outcome;
  std::vector<std::string> written;
};

/// One short page, answered so.
Sent SendOne(std::deque<std::string> replies) {
  ScriptedTalk script(std::move(replies));
  PagerSession session;
  const StepOutcome outcome = session.Send(script.talk, "123", {"ABC"});
  return {outcome, script.line.written};
}

TEST(PagerSessionTest, CallsUntilItIsAskedWhoItIs) {
  ScriptedTalk script({"", "garbage\r", "ID="});
  PagerSession session;
  EXPECT_EQ(session.Greet(script.talk).kind, Kind::kDone);
  EXPECT_THAT(script.line.written, ElementsAre("\r", "\r", "\r"));
  ScriptedTalk nobody({});
  const StepOutcome outcome = PagerSession().Greet(nobody.talk);
  EXPECT_EQ(outcome.verdict, Verdict::kNotReached);
  EXPECT_EQ(nobody.line.written.size(), 5U);
}

TEST(PagerSessionTest, LogsInWithAndWithoutAPassword) {
  ScriptedTalk script({std::string("110 1.8\r") + kLoggedIn});
  EXPECT_EQ(PagerSession().LogIn(script.talk, "SECRET").kind, Kind::kDone);
  EXPECT_THAT(script.line.written, ElementsAre("\x1BPG1SECRET\r"));
  ScriptedTalk short_of_words({"\x1B[p\r"});
  EXPECT_EQ(PagerSession().LogIn(short_of_words.talk).kind, Kind::kDone) << "some go ahead without an ACK";
  EXPECT_THAT(short_of_words.line.written, ElementsAre("\x1BPG1\r"));
}

TEST(PagerSessionTest, LogsInAgainWhenAskedButNotForEver) {
  ScriptedTalk asked({"\x15\r", "ID=\x15\r", kLoggedIn});
  EXPECT_EQ(PagerSession().LogIn(asked.talk).kind, Kind::kDone);
  EXPECT_EQ(asked.line.written.size(), 3U);
  ScriptedTalk refused({"509 Password\r\x15\r", "\x15\r", "\x15\r", kLoggedIn});
  const StepOutcome outcome = PagerSession().LogIn(refused.talk);
  EXPECT_EQ(outcome.verdict, Verdict::kRefused);
  EXPECT_EQ(outcome.field, Field::kProviderPhone);
  EXPECT_EQ(refused.line.written.size(), 3U);
  ScriptedTalk thrown_out({"507 No\r\x1B\x04\r"});
  EXPECT_EQ(PagerSession().LogIn(thrown_out.talk).verdict, Verdict::kRefused);
  ScriptedTalk silent({});
  EXPECT_EQ(PagerSession().LogIn(silent.talk).verdict, Verdict::kNotReached);
}

TEST(PagerSessionTest, SendsADamagedBlockAgainThreeTimes) {
  const Sent mended = SendOne({"\x15\r", "\x15\r", "\x15\r", "211 Sent\r\x06\r"});
  EXPECT_EQ(mended.outcome.verdict, Verdict::kDelivered);
  EXPECT_EQ(mended.outcome.said, "211 Sent");
  EXPECT_EQ(mended.written.size(), 4U);
  EXPECT_EQ(mended.written.front(), mended.written.back());
  const Sent hopeless = SendOne({"\x15\r", "\x15\r", "\x15\r", "\x15\r", "\x06\r"});
  EXPECT_EQ(hopeless.outcome.verdict, Verdict::kRefused);
  EXPECT_EQ(hopeless.outcome.field, Field::kBaudRate);
  EXPECT_EQ(hopeless.written.size(), 4U);
}

TEST(PagerSessionTest, TellsWhyAPageWasNotTaken) {
  EXPECT_EQ(SendOne({"511 Pager\r\x1E\r"}).outcome.field, Field::kAddress);
  EXPECT_EQ(SendOne({"513 Too long\r\x1E\r"}).outcome.field, Field::kMaxTextLength);
  EXPECT_EQ(SendOne({"\x1B\x04\r"}).outcome.verdict, Verdict::kNotReached);
  const Sent silent = SendOne({});
  EXPECT_EQ(silent.outcome.verdict, Verdict::kNotReached);
  EXPECT_EQ(silent.written.size(), 1U) << "a page that may have been taken is not sent twice";
}

TEST(PagerSessionTest, LaterPagesFailByThemselves) {
  ScriptedTalk script({"211 Sent\r\x06\r", "511 Pager\r\x1E\r"});
  const StepOutcome outcome = PagerSession().Send(script.talk, "123", {"one", "two", "three"});
  EXPECT_EQ(outcome.verdict, Verdict::kRefused);
  EXPECT_THAT(outcome.explanation, testing::HasSubstr("1 of 3 pages"));
  EXPECT_EQ(script.line.written.size(), 2U);
}

TEST(PagerSessionTest, SignsOffOnlyFromWhoListens) {
  ScriptedTalk script({kLoggedIn, "115 Goodbye\r\x1B\x04\r"});
  PagerSession session;
  EXPECT_EQ(session.SignOff(script.talk).kind, Kind::kNotNeeded);
  ASSERT_EQ(session.LogIn(script.talk).kind, Kind::kDone);
  EXPECT_EQ(session.SignOff(script.talk).said, "115 Goodbye");
  EXPECT_TRUE(session.HasEnded());
  EXPECT_EQ(session.SignOff(script.talk).kind, Kind::kNotNeeded);
}

}  // namespace
}  // namespace alertserver
