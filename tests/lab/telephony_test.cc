// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lab/telephony/modem.h"

namespace lab {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

class ModemTest : public testing::Test {
 protected:
  std::string Say(const std::string& bytes) {
    modem_.Take(bytes, now_);
    return Later(0);
  }
  std::string Later(Millis time) {
    now_ += time;
    return modem_.Due(now_);
  }
  void Connect() {
    Say("ATE0DT5550100\r");
    ASSERT_EQ(Later(times_.ring), "\r\nCONNECT 2400\r\n");
  }
  void LogIn() {
    Connect();
    ASSERT_EQ(Say("\r"), "ID=");
    ASSERT_THAT(Say("\x1BPG1\r"), EndsWith("\x06\r\x1B[p\r"));
  }
  std::vector<Arrival> Those(const std::string& what) const {
    std::vector<Arrival> found;
    for (const Arrival& arrival : arrivals_)
      if (arrival.what == what) found.push_back(arrival);
    return found;
  }

  const PhoneBook book_{{"5550200"}, {"5550100"}};
  const ModemTimes times_;
  PagerSetup pager_;
  DeviceFaults faults_{"modem"}, pager_faults_{"pager"};
  std::vector<Arrival> arrivals_;
  Millis now_ = 100'000;
  Modem modem_{book_,   times_,        pager_,
               faults_, pager_faults_, [this](Arrival arrival) { arrivals_.push_back(std::move(arrival)); }};
};

TEST_F(ModemTest, CommandsAreEchoedAndAnsweredInWordsOrNumbers) {
  EXPECT_EQ(Say("at&f &c1 s7=45\r"), "at&f &c1 s7=45\r\r\nOK\r\n");
  EXPECT_EQ(Say("ATE0\r"), "ATE0\r\r\nOK\r\n");
  EXPECT_EQ(Say("ATV0\r"), "0\r");
  EXPECT_EQ(Say("AT?\r"), "4\r");
  EXPECT_EQ(Say("ATZ\r"), "\r\nOK\r\n");
  EXPECT_EQ(Say("AT\b\b\rhello\r"), "AT\b\b\rhello\r") << "what is no command has no answer";
}

TEST_F(ModemTest, KeyedDigitsAreToldFromAccessDigits) {
  Say("ATDT9,5550200,,,4711;\r");
  const auto calls = Those("digits");
  ASSERT_EQ(calls.size(), 1U);
  EXPECT_EQ(calls[0].details["number"], "95550200");
  EXPECT_EQ(calls[0].details["digits"], "4711");
  EXPECT_EQ(Later(4 * times_.comma - 1), "") << "pauses take their time";
  EXPECT_EQ(Later(1), "\r\nOK\r\n");
}

TEST_F(ModemTest, WhoWaitsForACarrierOfAKeyedTerminalWaitsInVain) {
  Say("ATE0\r");
  Say("ATDT5550200\r");
  EXPECT_EQ(Later(times_.ring), "\r\nNO CARRIER\r\n");
}

TEST_F(ModemTest, AnyCharacterEndsAnAttempt) {
  Say("ATE0DT5550100\r");
  EXPECT_EQ(Say("x"), "\r\nNO CARRIER\r\n");
  EXPECT_EQ(Later(10 * times_.ring), "");
}

TEST_F(ModemTest, TheEscapeNeedsSilenceOnBothSides) {
  Connect();
  Say("data");
  Say("+++");
  EXPECT_EQ(Later(2 * times_.guard), "") << "no silence before it";
  Say("++");
  Say("+");
  EXPECT_EQ(Later(times_.guard - 1), "");
  EXPECT_EQ(Later(1), "\r\nOK\r\n");
  EXPECT_EQ(Say("ATH0\r"), "\r\nOK\r\n");
}

TEST_F(ModemTest, AClosedPortEndsTheCall) {
  LogIn();
  modem_.HangUp();
  EXPECT_EQ(Say("AT\r"), "\r\nOK\r\n");
}

TEST_F(ModemTest, APageInTwoBlocksArrivesWhole) {
  LogIn();
  const auto block = [](const std::string& inside) { return inside + PagerChecksum(inside) + "\r"; };
  EXPECT_EQ(Say(block("\x02"
                      "1234\rone \r\x17")),
            "\x06\r");
  EXPECT_THAT(Say(block("\x02two\r\x03")), HasSubstr("211 "));
  const auto pages = Those("page");
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_EQ(pages[0].details["pager"], "1234");
  EXPECT_EQ(pages[0].details["text"], "one two");
  EXPECT_EQ(pages[0].details["blocks"], 2);
  EXPECT_EQ(Say("\x04\r"), "115 Goodbye\r\x1B\x04\r\r\nNO CARRIER\r\n");
}

TEST_F(ModemTest, ADamagedBlockIsWantedAgainThreeTimes) {
  LogIn();
  for (int i = 0; i < PagerTerminal::kMostRefusals; ++i)
    EXPECT_THAT(Say("\x02"
                    "1\rx\r\x03"
                    "000\r"),
                EndsWith("\x15\r"));
  EXPECT_THAT(Say("\x02"
                  "1\rx\r\x03"
                  "000\r"),
              HasSubstr("\x1B\x04\r"));
  EXPECT_TRUE(Those("page").empty());
}

TEST(FaultsTest, FaultsAreReadAndUsedUp) {
  FaultBoard board;
  EXPECT_EQ(board.Set("pager=checksum:2"), "");
  for (const char* wrong :
       {"pager=busy", "pager", "pager=checksum:", "pager=checksum:0", "pager=checksum:2x", "x=busy"})
    EXPECT_NE(board.Set(wrong), "") << wrong;
  DeviceFaults& pager = board.Of("pager");
  EXPECT_EQ(pager.Text(), "checksum:2");
  EXPECT_TRUE(pager.Use(Fault::kChecksum) && pager.Use(Fault::kChecksum) && !pager.Use(Fault::kChecksum));
  board.Set("pager=slow");
  EXPECT_FALSE(board.Clear("nothing"));
  EXPECT_TRUE(board.Clear(""));
  EXPECT_FALSE(pager.Has(Fault::kSlow));
}

}  // namespace
}  // namespace lab
