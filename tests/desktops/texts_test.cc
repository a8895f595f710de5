// SPDX-License-Identifier: MIT
#include "desktops/qt/texts.h"

#include <gtest/gtest.h>

namespace desktops::qt {
namespace {

struct Place {
  std::size_t byte;
  int shown;
};

struct Row {
  const char* label;
  std::string text;
  bool multi_line;
  std::vector<Place> places;  ///< every place where a caret may stand
};

const Row kRows[] = {
    {"empty", "", false, {{0, 0}}},
    {"two bytes", "a\u00e9b", false, {{0, 0}, {1, 1}, {3, 2}, {4, 3}}},
    {"four bytes are two units", "x\U0001F600y", false, {{0, 0}, {1, 1}, {5, 3}, {6, 4}}},
    {"a line break is one place", "a\r\nb", true, {{0, 0}, {1, 1}, {3, 2}, {4, 3}}},
    {"not so in one line", "a\r\nb", false, {{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}}},
    {"bytes that are no text", "a\xFF\xC3", false, {{0, 0}, {1, 1}, {2, 2}, {3, 3}}},
};

TEST(TextsTest, PlacesCorrespondBothWays) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.label);
    for (const Place& place : row.places) {
      EXPECT_EQ(ShownPosition(row.text, place.byte, row.multi_line), place.shown);
      EXPECT_EQ(BytePosition(row.text, place.shown, row.multi_line), place.byte);
    }
    EXPECT_EQ(ShownText(row.text, row.multi_line).size(), row.places.back().shown);
    EXPECT_EQ(BytePosition(row.text, 1000, row.multi_line), row.text.size()) << "past the end";
  }
}

}  // namespace
}  // namespace desktops::qt
