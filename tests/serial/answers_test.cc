// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "server/serial/modem_answers.h"
#include "server/serial/pager_answers.h"

namespace alertserver {
namespace {

using Modem = ModemAnswer::Kind;
using Pager = PagerAnswer::Kind;

/// Byte by byte, as a slow line brings it.
template <class Answers>
auto AllIn(std::string_view text) {
  Answers answers;
  std::vector<std::remove_reference_t<decltype(*answers.Next())>> all;
  for (const char c : text) {
    answers.Take({&c, 1});
    while (auto answer = answers.Next()) all.push_back(*answer);
  }
  return all;
}

Modem OnlyKind(std::string_view text) {
  const auto all = AllIn<ModemAnswers>(text);
  EXPECT_EQ(all.size(), 1U) << text;
  return all.empty() ? Modem::kBarred : all.front().kind;
}

TEST(ModemAnswersTest, WordsAndNumbersAreKnownBehindEchoes) {
  EXPECT_EQ(OnlyKind("AT&F\r\r\nOK\r\n"), Modem::kOk);
  EXPECT_EQ(OnlyKind("ATZ\r0\r"), Modem::kOk);
  EXPECT_EQ(OnlyKind("\r\nRINGING\r\n\r\nBUSY\r\n"), Modem::kBusy);
  EXPECT_EQ(OnlyKind("\r\nNO DIAL TONE\r\n"), Modem::kNoDialTone);
  EXPECT_EQ(OnlyKind("ATDT5550100\r7\r"), Modem::kBusy);
  EXPECT_EQ(OnlyKind("\r\nDELAYED 01:00\r\n"), Modem::kBarred);
  EXPECT_TRUE(AllIn<ModemAnswers>("\r\nOKAY\r\nCONNECTED\r\nNO CARRIERS\r\n42\r\n").empty());
}

TEST(ModemAnswersTest, WhatFollowsAConnectionIsTheOtherSides) {
  ModemAnswers answers;
  answers.Take("\r\nCONNECT 2400/ARQ\r\nID=");
  const auto answer = answers.Next();
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->kind, Modem::kConnect);
  EXPECT_EQ(answer->text, "CONNECT 2400/ARQ");
  EXPECT_EQ(answers.TakeRest(), "ID=");
}

TEST(PagerAnswersTest, ASessionIsUnderstoodByteByByteAndWithParity) {
  std::string session =
      "\r\nID=110 1.8\r\n\x06\r\x1B[p\r211 Page\rsent\r\x06\r514 Checksum\r\x15\r\x1E\r\x1B\x04\r";
  for (char& c : session)
    if (__builtin_parity(static_cast<unsigned char>(c)) != 0) c = static_cast<char>(c | 0x80);
  const auto all = AllIn<PagerAnswers>(session);
  std::vector<Pager> kinds;
  for (const auto& answer : all) kinds.push_back(answer.kind);
  ASSERT_EQ(kinds, (std::vector<Pager>{Pager::kWhoIsIt, Pager::kAccepted, Pager::kGoAhead, Pager::kAccepted,
                                       Pager::kAgain, Pager::kRejected, Pager::kDisconnected}));
  EXPECT_EQ(all[1].code, 110);
  EXPECT_EQ(all[3].text, "211 Page / sent");
  EXPECT_EQ(all[4].code, 514);
  EXPECT_EQ(all[5].code, 0) << "a code belongs to one answer";
}

TEST(PagerAnswersTest, ASignMayStandBehindItsMessage) {
  const auto all = AllIn<PagerAnswers>("211 sent\x06\r5110 is no code\x1E\r");
  ASSERT_EQ(all.size(), 2U);
  EXPECT_EQ(all[0].code, 211);
  EXPECT_EQ(all[1].code, 0);
}

}  // namespace
}  // namespace alertserver
