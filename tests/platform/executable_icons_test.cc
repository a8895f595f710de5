// SPDX-License-Identifier: MIT
#include "platform/ui/executable_icons.h"

#include <gmock/gmock.h>

#include "platform/ui/icon_files.h"
#include "tests/support/icon_bytes.h"

namespace platform::ui {
namespace {

using namespace test_support;  // NOLINT
using testing::ElementsAre;

constexpr std::uint32_t kRed = 0xFFFF0000, kGreen = 0xFF00FF00, kBlue = 0xFF0000FF;

/// The colour of each icon; 0 for one that could not be read.
std::vector<std::uint32_t> Colours(const Bytes& file, std::size_t limit = 1000) {
  std::vector<std::uint32_t> colours;
  for (const Bitmap& icon : ExecutableIcons(file, limit))
    colours.push_back(icon.Width() > 0 ? icon.Pixel(0, 0) : 0);
  return colours;
}

const std::vector<Bytes> kImages = {Plain(16, 0xFF0000), Plain(32, 0x00FF00), Plain(32, 0x0000FF)};
const Bytes kCompressed = {0x89, 'P', 'N', 'G', 1, 2, 3, 4};

TEST(ExecutableIconsTest, EachGroupIsOneIconWhicheverSystemTheFileIsFor) {
  const std::vector<Group> groups = {{{32, 1, 2}}, {{16, 1, 1}}, {{32, 1, 3}}};
  for (const Bytes& file : {PortableExecutable(kImages, groups), PortableExecutable(kImages, groups, true),
                            SegmentedExecutable(kImages, groups)}) {
    EXPECT_THAT(Colours(file), ElementsAre(kGreen, kRed, kBlue));
    EXPECT_THAT(Colours(file, 2), ElementsAre(kGreen, kRed));
  }
}

TEST(ExecutableIconsTest, TheImageOfTheUsualSizeAndMostColoursIsTaken) {
  std::vector<Bytes> images = kImages;
  images.push_back(kCompressed);
  const std::vector<std::pair<Group, std::uint32_t>> rows = {
      {{{16, 8, 1}, {32, 1, 2}}, kGreen},             // the usual size before colours
      {{{32, 1, 2}, {32, 8, 3}}, kBlue},              // then colours
      {{{256, 32, 4}, {16, 1, 1}}, kRed},             // a compressed image is left out
      {{{32, 32, 4}, {32, 1, 9}, {16, 1, 1}}, kRed},  // and one that is not there
      {{{32, 32, 4}}, 0},                             // an icon keeps its place
      {{}, 0}};
  std::vector<Group> groups;
  std::vector<std::uint32_t> expected;
  for (const auto& [group, colour] : rows) {
    groups.push_back(group);
    expected.push_back(colour);
  }
  EXPECT_EQ(Colours(PortableExecutable(images, groups)), expected);
}

TEST(ExecutableIconsTest, WhatIsNoExecutableHasNoIcons) {
  const Bytes whole = PortableExecutable(kImages, {{{32, 1, 2}}});
  for (const std::size_t at : {0, 0x40, 0x58}) {  // the two signatures and the width of the system
    Bytes changed = whole;
    changed[at] ^= 0xFF;
    EXPECT_THAT(Colours(changed), ElementsAre()) << at;
  }
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const Bytes part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    for (const std::uint32_t colour : Colours(part)) EXPECT_EQ(colour, 0u) << size;
  }
}

TEST(ExecutableIconsTest, GroupsOfOneLargeImageDoNotMultiply) {
  const Bytes file = PortableExecutable({Plain(255, 0xFF0000)}, std::vector<Group>(1000, {{255, 1, 1}}));
  EXPECT_EQ(ExecutableIcons(file, 1000).size(), 259u) << "as many as 64 MiB hold";
}

TEST(IconFilesTest, IconFilesAndExecutablesAreReadAlike) {
  EXPECT_EQ(DecodeIcons(Ico(kImages), 2).size(), 2u);
  EXPECT_EQ(DecodeIcons(PortableExecutable(kImages, {{{32, 1, 2}}}), 2).size(), 1u);
  EXPECT_TRUE(IconsOfFile("/dev/zero", 2).empty());
}

}  // namespace
}  // namespace platform::ui
