// SPDX-License-Identifier: MIT
#include "lab/traps/trap.h"

#include <gtest/gtest.h>

#include "lab/traps/ber.h"

namespace lab {
namespace {

/// An element whose length takes one byte, or three as some senders always write it.
std::string Element(int tag, const std::string& content, bool is_long = false) {
  std::string element(1, static_cast<char>(tag));
  if (is_long || content.size() >= 0x80) {
    element += '\x82';
    element += static_cast<char>(content.size() >> 8);
  }
  return element + static_cast<char>(content.size()) + content;
}

const std::string kOid = Element(0x06, "\x2B\x06\x01\x04\x01\xBF\x08\x09");  // 1.3.6.1.4.1.8072.9

std::string Variables(bool is_long = false) {
  const std::string text = Element(0x30, kOid + Element(0x04, "Tank 4"));
  const std::string number = Element(0x30, kOid + Element(0x02, std::string("\xFF\0", 2)));
  return Element(0x30, text + number, is_long);
}

std::string Message(int version, const std::string& pdu, bool is_long = false) {
  return Element(0x30,
                 Element(0x02, std::string(1, static_cast<char>(version))) + Element(0x04, "public") + pdu,
                 is_long);
}

std::string Inform(bool is_long = false) {
  const std::string zero = Element(0x02, std::string(1, '\0'));
  return Message(1, Element(0xA6, Element(0x02, "\x01\x02") + zero + zero + Variables(is_long), is_long),
                 is_long);
}

std::string TrapV1() {
  const std::string six = Element(0x02, "\x06"), seven = Element(0x02, "\x07");
  return Message(0, Element(0xA4, kOid + Element(0x40, "\x7F\x01\x02\x03") + six + seven +
                                      Element(0x43, "\xFF\xFF") + Variables()));
}

TEST(TrapTest, ATrapOfVersion1IsRead) {
  const auto trap = DecodeTrap(TrapV1());
  ASSERT_TRUE(trap);
  EXPECT_EQ(trap->what, "trap");
  EXPECT_EQ(trap->version, "1");
  EXPECT_EQ(trap->community, "public");
  EXPECT_EQ(trap->details["enterprise"], "1.3.6.1.4.1.8072.9");
  EXPECT_EQ(trap->details["agent"], "127.1.2.3");
  EXPECT_EQ(trap->details["generic"], 6);
  EXPECT_EQ(trap->details["specific"], 7);
  EXPECT_EQ(trap->details["uptime"], 65535) << "a time has no sign";
  EXPECT_EQ(trap->details["variables"][0]["value"], "Tank 4");
  EXPECT_EQ(trap->details["variables"][1]["value"], -256);
}

TEST(TrapTest, AnInformIsAnsweredWithItself) {
  for (const bool is_long : {false, true}) {
    const std::string datagram = Inform(is_long);
    const auto inform = DecodeTrap(datagram);
    ASSERT_TRUE(inform);
    EXPECT_EQ(inform->what, "inform");
    EXPECT_EQ(inform->details["requestId"], 0x102);
    std::string expected = datagram;
    expected[expected.find('\xA6')] = '\xA2';
    EXPECT_EQ(InformResponse(datagram, *inform, 0), expected);
    EXPECT_NE(InformResponse(datagram, *inform, 16).find("\x02\x01\x10"), std::string::npos);
  }
}

TEST(TrapTest, WhatIsCutOffOrDamagedIsNoTrap) {
  for (const std::string& whole : {TrapV1(), Inform(), Inform(true)}) {
    for (std::size_t size = 0; size < whole.size(); ++size)
      EXPECT_FALSE(DecodeTrap(whole.substr(0, size))) << size;
    for (std::size_t at = 0; at < whole.size(); ++at) {
      std::string damaged = whole;
      damaged[at] = static_cast<char>(damaged[at] ^ 0x80);
      const auto trap = DecodeTrap(damaged);
      if (!trap || trap->what != "inform") continue;
      EXPECT_EQ(InformResponse(damaged, *trap, 0).size(), damaged.size());
    }
  }
  EXPECT_FALSE(DecodeTrap(Message(1, Element(0xA0, Variables())))) << "a request is no trap";
}

TEST(BerTest, IdentifiersHoldTwoArcsInTheirFirstNumber) {
  EXPECT_EQ(BerObjectIdentifier("\x2B"), "1.3");
  EXPECT_EQ(BerObjectIdentifier("\x88\x37\x03"), "2.999.3");
  EXPECT_EQ(BerObjectIdentifier("\x2B\x86"), "");
  EXPECT_EQ(BerObjectIdentifier(""), "");
}

}  // namespace
}  // namespace lab
