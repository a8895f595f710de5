// SPDX-License-Identifier: MIT
#include "server/serial/modem_dialogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/serial/scripted_line.h"

namespace alertserver {
namespace {

using Kind = StepOutcome::Kind;
using testing::ElementsAre;

TEST(ModemDialogueTest, AModemMayMissTheFirstCommand) {
  ScriptedTalk script({"", "AT&F\r\r\nOK\r\n"});
  EXPECT_EQ(ModemDialogue().Initialise(script.talk, "AT&F", Field::kInitString).kind, Kind::kDone);
  EXPECT_THAT(script.line.written, ElementsAre("AT&F\r", "AT&F\r"));
  ScriptedTalk silent({});
  EXPECT_EQ(ModemDialogue().Initialise(silent.talk, "", Field::kInitString).field, Field::kComPort);
  EXPECT_THAT(silent.line.written, ElementsAre("AT\r", "AT\r"));
}

TEST(ModemDialogueTest, ACallEndsWithTheEscapeAndTheHangUpString) {
  ScriptedTalk script({"\r\nCONNECT\r\nID=", "", "\r\nOK\r\n"});
  ModemDialogue modem;
  ASSERT_EQ(modem.DialForCarrier(script.talk, "ATDT5550100", Field::kProviderPhone).kind, Kind::kDone);
  EXPECT_EQ(modem.TakeRest(), "ID=");
  EXPECT_EQ(modem.HangUp(script.talk, "+++", "ATH0").kind, Kind::kDone);
  EXPECT_THAT(script.line.written, ElementsAre("ATDT5550100\r", "+++", "ATH0\r"));
}

TEST(ModemDialogueTest, ALineThatWasPutDownNeedsNoEscape) {
  ScriptedTalk script({"\r\nCONNECT\r\n", "\r\nOK\r\n"});
  ModemDialogue modem;
  ASSERT_EQ(modem.DialForCarrier(script.talk, "ATDT5550100", Field::kProviderPhone).kind, Kind::kDone);
  modem.LostCarrier();
  modem.HangUp(script.talk, "+++", "ATH0");
  EXPECT_THAT(script.line.written, ElementsAre("ATDT5550100\r", "ATH0\r"));
}

TEST(ModemDialogueTest, ACallWithoutAnEndIsGivenUp) {
  ScriptedTalk script({});
  EXPECT_EQ(ModemDialogue().DialForCarrier(script.talk, "ATDT1", Field::kProviderPhone).field,
            Field::kProviderPhone);
  EXPECT_THAT(script.line.written, ElementsAre("ATDT1\r", "\r")) << "any character ends an attempt";
}

TEST(ModemDialogueTest, AKeyedMessageIsSentAndNeverDelivered) {
  ScriptedTalk heard({"\r\nOK\r\n"});
  EXPECT_EQ(ModemDialogue().DialKeyed(heard.talk, "ATDT1,,2;", {}, Field::kAddress).verdict, Verdict::kSent);
  ScriptedTalk modem({"\r\nCONNECT\r\n"});
  EXPECT_EQ(ModemDialogue().DialKeyed(modem.talk, "ATDT1,,2;", {}, Field::kAddress).verdict,
            Verdict::kNotReached);
}

}  // namespace
}  // namespace alertserver
