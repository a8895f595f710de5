// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <new>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/base/atomic_write.h"
#include "platform/base/base64.h"
#include "platform/base/fixed_text.h"
#include "platform/base/guid.h"
#include "platform/base/low_memory.h"
#include "platform/base/paths.h"
#include "platform/base/utc_time.h"
#include "platform/base/utf8.h"
#include "tests/support/temporary.h"

using namespace platform;
using test_support::SavedVariable;

namespace {

TEST(LowMemoryTest, ItsAddressesFit32Bits) {
  const std::size_t size = 3 * 4096 + 1;
  const LowMemory memory(size), another(1);
  auto* const bytes = static_cast<unsigned char*>(memory.Data());
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(bytes), memory.Address());
  EXPECT_LE(memory.Address(), 0xFFFFFFFF - size);
  EXPECT_TRUE(std::all_of(bytes, bytes + size, [](unsigned char byte) { return byte == 0; }));
  std::fill(bytes, bytes + size, 7);
  EXPECT_EQ(*static_cast<unsigned char*>(another.Data()), 0);
  EXPECT_THROW(LowMemory(std::size_t{1} << 32), std::bad_alloc);
  EXPECT_NE(LowMemory(0).Address(), 0u);
}

TEST(Base64Test, BytesComeBackAndOtherTextsAreNone) {
  const std::pair<std::string, std::string> rows[] = {
      {"", ""},        {"f", "Zg=="},        {"fo", "Zm8="},
      {"foo", "Zm9v"}, {"foob", "Zm9vYg=="}, {std::string("\xFF\0\xFB\xEF\xBE", 5), "/wD7774="}};
  for (const auto& [bytes, text] : rows) {
    EXPECT_EQ(EncodeBase64(bytes), text);
    EXPECT_EQ(DecodeBase64(text), bytes) << text;
  }
  for (const char* text : {"Zg=", "Zg", "Z===", "Zm9v\n", "Zg==Zg==", "Zm!v", "===="})
    EXPECT_FALSE(DecodeBase64(text)) << text;
}

TEST(UtcTextTest, TimesComeBackAndOtherTextsAreNone) {
  const UtcTime time(std::chrono::milliseconds(1772353805250));
  EXPECT_EQ(ToUtcText(time), "2026-03-01T08:30:05.250Z");
  EXPECT_EQ(ParseUtcText("2026-03-01T08:30:05.250Z"), time);
  EXPECT_EQ(ParseUtcText("2026-03-01T08:30:05Z"), time - std::chrono::milliseconds(250));
  // The clock has no number for the last two.
  for (const char* text : {"", "2026-03-01", "2026-03-01T08:30:05", "2026-03-01T08:30:05.2Z",
                           "2026-03-01T08:30:05.-12Z", "9026-03-01T08:30:05Z", "0026-03-01T08:30:05Z"})
    EXPECT_FALSE(ParseUtcText(text)) << text;
}

TEST(GuidTest, TextFormIsThatOfThePlatform) {
  constexpr std::string_view kText = "{3217DA53-ADD1-11CF-8137-000000000001}";
  const std::optional<GUID> guid = GUID::Parse(kText);
  ASSERT_TRUE(guid);
  EXPECT_EQ(std::memcmp(&*guid, "\x53\xDA\x17\x32\xD1\xAD\xCF\x11\x81\x37\0\0\0\0\0\x01", 16), 0);
  EXPECT_EQ(guid->ToString(), kText);
  EXPECT_EQ(GUID::Parse("3217da53-add1-11cf-8137-000000000001"), guid);
}

TEST(GuidTest, OtherTextsAreNone) {
  for (const char* text :
       {"", "{}", "{3217DA53-ADD1-11CF-8137-000000000001", "3217DA53-ADD1-11CF-8137-000000000001}",
        "3217DA53ADD1-11CF-8137-0000000000011", "{3217DA53-ADD1-11CF-8137-00000000000G}",
        "(3217DA53-ADD1-11CF-8137-000000000001)", "{3217DA53-ADD1-11CF-8137-0000000000011}",
        "3217DA53-ADD1-11CF-8137-00000000000-", " 3217DA53-ADD1-11CF-8137-00000000001"})
    EXPECT_FALSE(GUID::Parse(text)) << text;
}

TEST(GuidTest, GeneratedOnesAreRandomAndMarkedSo) {
  EXPECT_TRUE(kNullGuid.IsNull());
  std::set<GUID> seen;
  for (int i = 0; i < 1000; ++i) {
    const GUID guid = GUID::Generate();
    EXPECT_EQ(guid.data3 >> 12, 4);
    EXPECT_EQ(guid.data4[0] >> 6, 2);
    seen.insert(guid);
  }
  EXPECT_EQ(seen.size(), 1000u);
}

struct Cut {
  const char* label;
  std::string text;
  std::size_t limit;
  std::size_t length;
};

TEST(Utf8Test, APrefixEndsAtASequence) {
  for (const Cut& cut : std::vector<Cut>{
           {"fits", "abc", 3, 3},
           {"ASCII", "abc", 2, 2},
           {"nothing", "abc", 0, 0},
           {"inside two bytes", "a\u00E9", 2, 1},
           {"behind two bytes", "a\u00E9b", 3, 3},
           {"one into three bytes", "\u20AC", 1, 0},
           {"two into three bytes", "\u20AC", 2, 0},
           {"one into four bytes", "x\U0001F600y", 2, 1},
           {"three into four bytes", "x\U0001F600y", 4, 1},
           {"behind four bytes", "x\U0001F600y", 5, 5},
           {"stray continuation bytes", "\x80\x80\x80\x80\x80", 3, 3},
           {"truncated at the text's end", "\xF0\x9F\x98", 2, 2},
           {"overlong form", "\xC0\xAFx", 1, 1},
           {"surrogate", "\xED\xA0\x80x", 2, 2},
           {"beyond the last code point", "\xF4\x90\x80\x80x", 2, 2},
       })
    EXPECT_EQ(Utf8Prefix(cut.text, cut.limit), cut.length) << cut.label;
}

TEST(Utf8Test, StepsGoFromSequenceToSequence) {
  const std::string text = "a\u00E9\u20AC\U0001F600\xFFz";
  const std::vector<std::size_t> starts = {0, 1, 3, 6, 10, 11, 12};
  for (std::size_t i = 0; i + 1 < starts.size(); ++i) {
    EXPECT_EQ(Utf8Next(text, starts[i]), starts[i + 1]);
    EXPECT_EQ(Utf8Previous(text, starts[i + 1]), starts[i]);
  }
  EXPECT_EQ(Utf8Previous(text, 0), 0u);
  EXPECT_EQ(Utf8Next(text, text.size()), text.size());
  EXPECT_EQ(Utf8Next(text, 7), 10u) << "from inside a sequence";
  EXPECT_EQ(Utf8Previous(text, 8), 6u);
}

TEST(Utf8Test, AppendsTheShortestForm) {
  std::string text;
  for (const char32_t code_point : {U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xFFFF', U'\x10000', U'\x10FFFF'})
    Utf8Append(text, code_point);
  EXPECT_EQ(text, "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
  text.clear();
  Utf8Append(text, char32_t{0xD800});
  Utf8Append(text, char32_t{0x110000});
  EXPECT_EQ(text, "\uFFFD\uFFFD");
}

TEST(Utf8Test, CaseIsThatOfAsciiLetters) {
  EXPECT_TRUE(EqualIgnoringCase("<User Name>", "<uSER nAME>"));
  EXPECT_FALSE(EqualIgnoringCase("abc", "abcd"));
  EXPECT_FALSE(EqualIgnoringCase("[", "{")) << "32 apart, as letters are";
  EXPECT_TRUE(StartsWithIgnoringCase("Workstation", "WORK"));
  EXPECT_TRUE(StartsWithIgnoringCase("x", ""));
  EXPECT_FALSE(StartsWithIgnoringCase("WOR", "work"));
}

TEST(FixedTextTest, HoldsWholeCharactersUpToItsTerminator) {
  FixedText<8> text;
  text.Assign("12345678");
  EXPECT_EQ(text.View(), "1234567");
  text.Assign("12345\u20AC");
  EXPECT_EQ(text.View(), "12345") << "a sequence is never cut in two";
  text.Assign(std::string_view("ab\0cd", 5));
  EXPECT_EQ(std::memcmp(text.Data(), "ab\0\0\0\0\0\0", 8), 0) << "nothing behind the terminator";
}

class PathsTest : public testing::Test {
 protected:
  const test_support::TemporaryDirectory temporary_;
  const std::string& directory_ = temporary_.Path();
};

TEST_F(PathsTest, TheDataDirectoryFollowsTheEnvironment) {
  const SavedVariable own("ALERTING_DATA"), xdg("XDG_DATA_HOME"), home("HOME");
  unsetenv("ALERTING_DATA");
  setenv("XDG_DATA_HOME", "/data", 1);
  setenv("HOME", "/home/console", 1);
  EXPECT_EQ(DataDirectory(), "/data/alerting");
  setenv("XDG_DATA_HOME", "relative", 1);
  EXPECT_EQ(DataDirectory(), "/home/console/.local/share/alerting");
  setenv("HOME", "", 1);
  const std::filesystem::path here = std::filesystem::current_path();
  EXPECT_EQ(DataDirectory(), here / "alerting-data");
  std::filesystem::current_path(directory_);
  EXPECT_EQ(DataDirectory(), here / "alerting-data") << "the data stay where they are";
  std::filesystem::current_path(here);
  setenv("ALERTING_DATA", "/srv/alerts", 1);
  EXPECT_EQ(DataDirectory(), "/srv/alerts");
}

TEST_F(PathsTest, AFileThatCannotBeReadLeavesTheBytes) {
  std::string bytes = "as they were";
  EXPECT_FALSE(ReadWholeFile(directory_ + "/missing", bytes));
  EXPECT_FALSE(ReadWholeFile(directory_, bytes));
  EXPECT_EQ(bytes, "as they were");
}

TEST_F(PathsTest, DirectoriesAreMadeWithTheirParents) {
  EXPECT_TRUE(MakeDirectories(directory_ + "/a/b/c/"));
  EXPECT_TRUE(MakeDirectories(directory_ + "/a/b"));
  struct stat info {};
  ASSERT_EQ(stat((directory_ + "/a/b").c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0700u);
  ASSERT_TRUE(WriteFileAtomically(directory_ + "/file", "", 0600));
  EXPECT_FALSE(MakeDirectories(directory_ + "/file"));
  EXPECT_FALSE(MakeDirectories(directory_ + "/file/below"));
  EXPECT_FALSE(MakeDirectories(""));
}

}  // namespace
