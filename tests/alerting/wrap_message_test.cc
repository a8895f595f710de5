// SPDX-License-Identifier: MIT
#include "alerting/responses/wrap_message.h"

#include <gtest/gtest.h>

namespace alerting {
namespace {

constexpr std::size_t kNoLimit = 10000;

std::string Letters(std::size_t count) { return std::string(count, 'x'); }

TEST(WrapMessageTest, BreaksAfterTheLastBlankOrInsideALongWord) {
  struct Row {
    const char* what;
    std::string text;
    std::size_t width;
    std::string wrapped;
  };
  const Row rows[] = {
      {"nothing", "", 80, ""},
      {"one short of the width", Letters(79), 80, Letters(79)},
      {"a word of 100", Letters(100), 80, Letters(79) + "\r\n" + Letters(21)},
      {"later lines do not count their first letter", Letters(20), 8,
       Letters(7) + "\r\n" + Letters(8) + "\r\n" + Letters(5)},
      {"after the last blank", "one two three", 10, "one two \r\nthree"},
      {"the blank that reaches the width is not looked at", "one two x", 8, "one \r\ntwo x"},
      {"a blank that begins a line is out of reach at its end", "aaa bbbb", 4, "aaa\r\n bbb\r\nb"},
      {"a tab is a blank", "one\ttwo", 6, "one\t\r\ntwo"},
      {"so is a vertical tab", "one\vtwo", 6, "one\v\r\ntwo"},
      {"so is a form feed", "one\ftwo", 6, "one\f\r\ntwo"},
      {"own line breaks count anew", "one two\r\nthree", 8, "one two\r\nthree"},
      {"a line feed alone too", "1234567\n1234567\n1", 8, "1234567\n1234567\n1"},
      {"columns are characters", "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9", 4,
       "\xC3\xA9\xC3\xA9\xC3\xA9\r\n\xC3\xA9"},
      {"width 0 breaks nothing", Letters(300), 0, Letters(300)},
      {"width 1 comes to an end", "abc", 1, "\r\na\r\nb\r\nc"},
  };
  for (const Row& row : rows) EXPECT_EQ(WrapMessage(row.text, row.width, kNoLimit), row.wrapped) << row.what;
}

TEST(WrapMessageTest, CutsTheResultToItsFirstBytes) {
  EXPECT_EQ(WrapMessage(Letters(100), 80, 80), Letters(79) + "\r");
  EXPECT_EQ(WrapMessage("ab\xE2\x82\xAC", 80, 4), "ab");
  EXPECT_EQ(WrapMessage("abc", 0, 2), "ab");
}

}  // namespace
}  // namespace alerting
