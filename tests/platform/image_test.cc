// SPDX-License-Identifier: MIT
#include "platform/ui/image.h"

#include <gmock/gmock.h>

#include "tests/support/icon_bytes.h"

namespace platform::ui {
namespace {

using namespace test_support;  // NOLINT
using testing::ElementsAre;

Bytes Bmp(const Picture& p) {
  const Bytes dib = Dib(p);
  Bytes bytes = {'B', 'M'};
  Put(bytes, 14 + dib.size(), 4);
  Put(bytes, 0, 4);
  Put(bytes, 14 + 40 + 4 * p.palette.size(), 4);
  bytes.insert(bytes.end(), dib.begin(), dib.end());
  return bytes;
}

std::vector<std::uint32_t> Pixels(const Bitmap& picture) {
  return {picture.Data(), picture.Data() + picture.Width() * picture.Height()};
}

std::vector<std::uint32_t> PixelsOf(const Picture& p) {
  const std::optional<Bitmap> picture = DecodeBmp(Bmp(p));
  return picture ? Pixels(*picture) : std::vector<std::uint32_t>();
}

constexpr std::uint32_t kRed = 0xFFFF0000, kGreen = 0xFF00FF00, kBlue = 0xFF0000FF, kWhite = 0xFFFFFFFF,
                        kBlack = 0xFF000000;

const Picture kTrueColor{2, 2, 24, {}, {0xFF, 0, 0, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0, 0xFF, 0, 0xFF, 0, 0, 0}};

TEST(DecodeBmpTest, ReadsEveryDepth) {
  EXPECT_THAT(PixelsOf(kTrueColor), ElementsAre(kRed, kGreen, kBlue, kWhite)) << "stored bottom row first";
  Picture top_down = kTrueColor;
  top_down.height = -2;
  EXPECT_THAT(PixelsOf(top_down), ElementsAre(kBlue, kWhite, kRed, kGreen));
  EXPECT_THAT(PixelsOf({3, 1, 1, {0, 0xFFFFFF}, {0b10100000, 0, 0, 0}}), ElementsAre(kWhite, kBlack, kWhite));
  EXPECT_THAT(PixelsOf({3, 1, 4, {0xFF0000, 0xFF00, 0xFF}, {0x01, 0x20, 0, 0}}),
              ElementsAre(kRed, kGreen, kBlue));
  EXPECT_THAT(PixelsOf({2, 1, 8, {0xFF0000, 0xFF00}, {1, 200, 0, 0}}), ElementsAre(kGreen, kBlack))
      << "beyond the palette all is black";
}

TEST(DecodeBmpTest, AFourthByteOfZerosIsNoTransparency) {
  EXPECT_THAT(PixelsOf({2, 1, 32, {}, {0, 0, 0xFF, 0, 0xFF, 0, 0, 0}}), ElementsAre(kRed, kBlue));
  EXPECT_THAT(PixelsOf({2, 1, 32, {}, {0, 0, 0xFF, 0x80, 0xFF, 0, 0, 0}}),
              ElementsAre(0x80FF0000, 0x000000FF));
}

TEST(DecodeBmpTest, RefusesWhatDoesNotFit) {
  const auto with = [](auto change) {
    Picture p = kTrueColor;
    change(p);
    return DecodeBmp(Bmp(p)).has_value();
  };
  EXPECT_TRUE(with([](Picture&) {}));
  EXPECT_FALSE(with([](Picture& p) { p.width = 0; }));
  EXPECT_FALSE(with([](Picture& p) { p.width = -2; }));
  EXPECT_FALSE(with([](Picture& p) { p.height = 0; }));
  EXPECT_FALSE(with([](Picture& p) { p.height = 3; }));
  EXPECT_FALSE(with([](Picture& p) { p.width = INT32_MAX; }));
  EXPECT_FALSE(with([](Picture& p) { p.height = INT32_MIN; }));
  EXPECT_FALSE(with([](Picture& p) { p.bits = 16; }));
  EXPECT_FALSE(with([](Picture& p) { p.compression = 1; }));
  EXPECT_FALSE(with([](Picture& p) {
    p.bits = 8;
    p.palette.resize(257);
  }));
  Bytes pixels_beyond = Bmp(kTrueColor);
  pixels_beyond[13] = 0xFF;
  EXPECT_FALSE(DecodeBmp(pixels_beyond));
}

TEST(DecodeBmpTest, NoPrefixIsAPicture) {
  const Bytes whole = Bmp({3, 1, 4, {0xFF0000, 0xFF00, 0xFF}, {0x01, 0x20, 0, 0}});
  ASSERT_TRUE(DecodeBmp(whole));
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const Bytes part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_FALSE(DecodeBmp(part)) << size;
  }
}

// 2 x 1 pixels; the mask makes the right one clear.
const Bytes kMasked = Dib({2, 2, 24, {}, {0, 0, 0xFF, 0xFF, 0, 0, 0, 0, 0b01000000, 0, 0, 0}});
const Bytes kWithAlpha = Dib({2, 2, 32, {}, {0, 0, 0xFF, 0xFF, 0xFF, 0, 0, 0x80, 0, 0, 0, 0}});

TEST(DecodeIcoTest, ReadsMaskAndAlpha) {
  const std::vector<Bitmap> icons = DecodeIco(Ico({kMasked, kWithAlpha}));
  ASSERT_EQ(icons.size(), 2u);
  EXPECT_THAT(Pixels(icons[0]), ElementsAre(kRed, 0u));
  EXPECT_THAT(Pixels(icons[1]), ElementsAre(kRed, 0x800000FFu));
}

TEST(DecodeIcoTest, LeavesOutWhatItCannotRead) {
  const Bytes compressed_other = {0x89, 'P', 'N', 'G', 1, 2, 3, 4};
  const Bytes wide = Dib({257, 2, 1, {0, 0xFFFFFF}, Bytes(144)});
  EXPECT_EQ(DecodeIco(Ico({compressed_other, kMasked, wide, {}})).size(), 1u);
  Bytes cursor = Ico({kMasked});
  cursor[2] = 2;
  EXPECT_TRUE(DecodeIco(cursor).empty());
}

TEST(DecodeIcoTest, NoPrefixHasTheLastIcon) {
  const Bytes whole = Ico({kMasked, kMasked});
  ASSERT_EQ(DecodeIco(whole).size(), 2u);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const Bytes part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_LE(DecodeIco(part).size(), size + kMasked.size() >= whole.size() ? 1u : 0u) << size;
  }
}

TEST(DecodeIcoTest, ManyEntriesOfOneImageDoNotMultiply) {
  const Bytes image = Dib({256, 512, 1, {0, 0xFFFFFF}, Bytes(256 * 512 / 8)});
  Bytes bytes;
  Put(bytes, 0, 2);
  Put(bytes, 1, 2);
  Put(bytes, 0xFFFF, 2);
  for (int i = 0; i < 0xFFFF; ++i) {
    Put(bytes, 0, 8);
    Put(bytes, image.size(), 4);
    Put(bytes, 6 + 16 * 0xFFFF, 4);
  }
  bytes.insert(bytes.end(), image.begin(), image.end());
  EXPECT_EQ(DecodeIco(bytes).size(), 256u) << "as many as 64 MiB hold";
}

TEST(BitmapTest, APartIsClippedToThePicture) {
  Bitmap strip(4, 2);
  strip.SetPixel(2, 1, kRed);
  const Bitmap part = strip.Part(2, 0, 2, 2);
  EXPECT_THAT(Pixels(part), ElementsAre(0u, 0u, kRed, 0u));
  EXPECT_EQ(strip.Part(3, 1, 9, 9).Width(), 1);
  EXPECT_EQ(strip.Part(3, 1, 9, 9).Height(), 1);
  EXPECT_EQ(strip.Part(9, 9, 2, 2).Width(), 0);
  EXPECT_EQ(strip.Part(0, 0, -1, 2).Width(), 0);
  EXPECT_EQ(strip.Part(1, 0, INT32_MAX, INT32_MAX).Width(), 3);
}

}  // namespace
}  // namespace platform::ui
