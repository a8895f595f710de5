// SPDX-License-Identifier: MIT
#include "server/serial/pager_blocks.h"

#include <gtest/gtest.h>

namespace alertserver {
namespace {

TEST(PagerBlocksTest, TheChecksumIsThatOfThePublishedExample) {
  EXPECT_EQ(BlockChecksum("\x02"
                          "123\rABC\r\x03"),
            "17;");
  EXPECT_EQ(BlockChecksum("\xFF"), BlockChecksum("\x7F")) << "the top bit is parity";
}

TEST(PagerBlocksTest, AShortPageIsOneBlock) {
  EXPECT_EQ(PagerBlocks("123", "ABC"), (std::vector<std::string>{"\x02"
                                                                 "123\rABC\r\x03"
                                                                 "17;\r"}));
  EXPECT_EQ(PagerBlocks("123", "").size(), 1U);
}

/// What stands between STX and the end of the block.
std::string Inside(const std::string& block) { return block.substr(1, block.size() - 6); }

TEST(PagerBlocksTest, ALongPageIsCutIntoFullBlocksWithThePagerInTheFirst) {
  std::string page;
  for (char c = 'a'; page.size() < 600; c = c == 'z' ? 'a' : static_cast<char>(c + 1)) page += c;
  const auto blocks = PagerBlocks("1234567", page);
  ASSERT_EQ(blocks.size(), 3U);
  std::string joined;
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    const std::string& block = blocks[i];
    EXPECT_LE(Inside(block).size(), kBlockSize);
    EXPECT_EQ(block[block.size() - 5], i == 2 ? '\x03' : '\x17');
    EXPECT_EQ(block.substr(block.size() - 4), BlockChecksum(block.substr(0, block.size() - 4)) + "\r");
    EXPECT_EQ(Inside(block).back(), '\r');
    joined += Inside(block).substr(0, Inside(block).size() - 1);
  }
  EXPECT_EQ(Inside(blocks[0]).size(), kBlockSize) << "a block is used to the full";
  EXPECT_EQ(joined, "1234567\r" + page);
  EXPECT_EQ(PagerBlocks("1", std::string(247, 'x')).size(), 1U);
  EXPECT_EQ(PagerBlocks("1", std::string(248, 'x')).size(), 2U);
}

TEST(PagerBlocksTest, PagesHoldWhatTheProviderTakes) {
  EXPECT_EQ(Pages("abcdefg", 3), (std::vector<std::string>{"abc", "def", "g"}));
  EXPECT_EQ(Pages("abcdef", 3).size(), 2U);
  EXPECT_EQ(Pages("abc", 0).size(), 1U);
  EXPECT_EQ(Pages("", 3).size(), 1U);
}

TEST(PagerBlocksTest, OnlyCharactersOfTheProtocolAreSent) {
  EXPECT_EQ(PagerText("a\r\nb\nc\rd"), "a\rb\rc\rd");
  EXPECT_EQ(PagerText("5 °C \xE2\x82\xAC \xFF"), "5 ?C ? ?");
  EXPECT_EQ(PagerText(std::string_view("\x02\x03\x1B\x7F\0", 5)), "   ? ");
}

}  // namespace
}  // namespace alertserver
