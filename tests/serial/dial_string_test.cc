// SPDX-License-Identifier: MIT
#include "server/serial/dial_string.h"

#include <gtest/gtest.h>

namespace alertserver {
namespace {

DialLocation Office() {
  DialLocation place;
  place.areaCode = "030";
  place.localAccess = "0,";
  place.longDistanceAccess = "00,";
  place.callWaitingDisable = "*70,";
  return place;
}

TEST(DialStringTest, AccessDigitsDependOnTheArea) {
  DialLocation place = Office();
  EXPECT_EQ(NumberFrom(&place, "555 01-00"), "0,5550100");
  EXPECT_EQ(NumberFrom(&place, "(030)5550100"), "0,5550100");
  EXPECT_EQ(NumberFrom(&place, "(089)5550100"), "00,0895550100");
  EXPECT_EQ(NumberFrom(&place, "(089 5550100"), "0,0895550100") << "an area that never ends is no area";
  EXPECT_EQ(NumberFrom(nullptr, "(089)555,01#00"), "089555,01#00");
  place.hasCallWaiting = true;
  EXPECT_EQ(NumberFrom(&place, "5550100"), "*70,0,5550100");
}

TEST(DialStringTest, NothingOfANumberIsACommand) {
  EXPECT_EQ(NumberFrom(nullptr, "555;H0\rATDT666"), "5550666");
  DialLocation place;
  place.localAccess = "9;\r";
  EXPECT_EQ(NumberFrom(&place, "1"), "91");
}

TEST(DialStringTest, ThePrefixFollowsThePlace) {
  ModemLink modem;
  modem.dialPrefix = "ATDT";
  modem.dialSuffix = ";";
  EXPECT_EQ(DialCommand(modem, "5550100", ",,4711"), "ATDT5550100,,4711;");
  modem.location = Office();
  modem.location->toneDialing = false;
  EXPECT_EQ(DialCommand(modem, "5550100", ""), "ATDP0,5550100;");
  modem.dialPrefix = "ATX3DT";
  EXPECT_EQ(DialCommand(modem, "5550100", ""), "ATX3DP0,5550100;");
}

TEST(DialStringTest, PausesAreAtLeastAsLongAsAsked) {
  EXPECT_EQ(Pauses(0), "");
  EXPECT_EQ(Pauses(1), ",");
  EXPECT_EQ(Pauses(5), ",,,");
  EXPECT_EQ(Pauses(0xFFFFFFFF).size(), 60U);
}

}  // namespace
}  // namespace alertserver
