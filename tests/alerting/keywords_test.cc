// SPDX-License-Identifier: MIT
#include "alerting/responses/keywords.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>
#include <random>

#include "alerting/frame/strings.h"
#include "platform/base/utf8.h"
#include "platform/ui/form.h"

namespace alerting {
namespace {

constexpr std::uint32_t kLastKeyword = 13;

KeywordIds Ids(std::initializer_list<std::uint32_t> first) {
  KeywordIds ids{};
  std::ranges::copy(first, ids.begin());
  return ids;
}

struct Stored {
  std::string text;
  KeywordIds ids;
  friend bool operator==(const Stored&, const Stored&) = default;
};

Stored Collapse(std::string_view shown) {
  Stored stored;
  stored.text = CollapseKeywords(shown, stored.ids);
  return stored;
}

std::string Repeat(std::string_view text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

class KeywordsTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { BuildKeywordTable(TheModule()); }
};

TEST_F(KeywordsTest, NamesAndPlaceholdersAreFoundByIdentifierAndNoOther) {
  EXPECT_STREQ(KeywordName(1), "<User Name>");
  EXPECT_STREQ(KeywordName(13), "<Text Param>");
  EXPECT_STREQ(KeywordFormat(11), "%ld");
  EXPECT_STREQ(KeywordFormat(12), "%s");
  for (const std::uint32_t unknown : {0u, 14u, 15u, 0xFFFFFFFFu}) {
    EXPECT_EQ(KeywordName(unknown), nullptr) << unknown;
    EXPECT_EQ(KeywordFormat(unknown), nullptr) << unknown;
    EXPECT_FALSE(FormatMatchesAt("%s", 0, unknown)) << unknown;
  }
  platform::ui::Form form(nullptr, "");
  platform::ui::ListBox list(form, 1, "&Keywords:");
  FillKeywordList(list);
  for (int i = 0; i < 13; ++i)
    EXPECT_EQ(reinterpret_cast<const Keyword*>(list.Data(i)), &KeywordAt(i)) << "each item has its row";
}

TEST_F(KeywordsTest, CollapsingReplacesNamesAndListsTheirIdentifiers) {
  const std::pair<std::string, Stored> rows[] = {
      {"", {"", Ids({})}},
      {"<user name> was told: <Event Text>", {"%s was told: %s", Ids({1, 12})}},
      {"<Event ID>", {"%ld", Ids({11})}},
      {"<<Time><Date>>", {"<%s%s>", Ids({5, 6})}},
      {"a < b, <Time", {"a < b, <Time", Ids({})}},
      {"<Operational Status>", {"<Operational Status>", Ids({})}},
      {"100%s of <Time>", {"100%s of %s", Ids({5})}},
  };
  for (const auto& [shown, expected] : rows) EXPECT_EQ(Collapse(shown), expected) << shown;
  // The twenty-first keyword stays text.
  const Stored stored = Collapse(Repeat("<Time>", 20) + "<Date><Time>");
  EXPECT_EQ(stored.text, Repeat("%s", 20) + "<Date><Time>");
  EXPECT_THAT(stored.ids, testing::Each(5));
}

TEST_F(KeywordsTest, ExpandingPutsNamesInPlaceOfTheirPlaceholdersOnly) {
  EXPECT_EQ(ExpandKeywords("%s at 50%", Ids({12})), "<Event Text> at 50%");
  EXPECT_EQ(ExpandKeywords("%s %ld %s", Ids({11, 1})), "%s <Event ID> <User Name>");
  EXPECT_EQ(ExpandKeywords("%s", Ids({0, 1})), "%s");
  EXPECT_EQ(ExpandKeywords("%s %s", Ids({77, 1})), "%s %s");
  EXPECT_EQ(ExpandKeywords("no placeholder", Ids({1})), "no placeholder");
}

/// Texts as administrators and accidents make them: names in any case, parts of names, "%" and "<"
/// everywhere.
class Texts {
 public:
  std::string Next() {
    std::string text;
    for (int pieces = Below(45); pieces > 0; --pieces) text += Piece();
    return text;
  }

  int Below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(random_); }

 private:
  std::string Piece() {
    static const std::string kNoise[] = {"%",  "%s",    "%ld", "%l",   "<",        ">",
                                         "<<", "word ", " ",   "\r\n", "\xC3\xA9", "\xE2\x82\xAC"};
    const int kind = Below(4);
    if (kind == 0) return kNoise[Below(static_cast<int>(std::size(kNoise)))];
    std::string name = KeywordName(1 + static_cast<std::uint32_t>(Below(kLastKeyword)));
    if (kind == 1) return name.substr(0, static_cast<std::size_t>(Below(static_cast<int>(name.size()))));
    if (kind == 2)
      for (char& c : name) c = static_cast<char>(Below(2) == 0 ? std::tolower(c) : std::toupper(c));
    return name;
  }

  std::mt19937 random_{20};  // NOLINT: the same texts in every run
};

TEST_F(KeywordsTest, ExpandingAndCollapsingGivesBackEveryStoredForm) {
  Texts texts;
  int full_lists = 0;
  for (int i = 0; i < 10000; ++i) {
    const std::string shown = texts.Next();
    const Stored stored = Collapse(shown);
    full_lists += stored.ids.back() != 0;
    ASSERT_EQ(Collapse(ExpandKeywords(stored.text, stored.ids)), stored) << shown;
  }
  EXPECT_GT(full_lists, 100);
}

/// How many keywords a reader of the stored form finds; every listed one, when text and list are in step.
std::ptrdiff_t Placeholders(const Stored& stored) {
  const std::string shown = ExpandKeywords(stored.text, stored.ids);
  return std::ranges::count(shown, '<') - std::ranges::count(stored.text, '<');
}

std::ptrdiff_t Listed(const KeywordIds& ids) { return std::ranges::find(ids, 0u) - ids.begin(); }

TEST_F(KeywordsTest, FittingKeepsTextAndIdentifiersInStepAtEveryLimit) {
  Texts texts;
  for (int i = 0; i < 500; ++i) {
    const Stored whole = Collapse(texts.Next());
    const std::ptrdiff_t found = Placeholders(whole);
    ASSERT_EQ(found, Listed(whole.ids)) << whole.text;
    for (std::size_t limit = 0; limit <= whole.text.size() + 1; ++limit) {
      Stored cut{{}, whole.ids};
      cut.text = FitStoredForm(whole.text, cut.ids, limit);
      ASSERT_LE(cut.text.size(), limit);
      ASSERT_TRUE(whole.text.starts_with(cut.text));
      ASSERT_EQ(platform::Utf8Prefix(whole.text, cut.text.size()), cut.text.size());
      // What is left shows exactly the beginning of what the whole shows, and lists exactly what it shows.
      ASSERT_EQ(Placeholders(cut), Listed(cut.ids)) << whole.text << " cut to " << limit;
      ASSERT_TRUE(ExpandKeywords(whole.text, whole.ids).starts_with(ExpandKeywords(cut.text, cut.ids)))
          << whole.text << " cut to " << limit;
      ASSERT_TRUE(std::ranges::all_of(cut.ids.begin() + Listed(cut.ids), cut.ids.end(),
                                      [](std::uint32_t id) { return id == 0; }));
      // No more is given up than one placeholder or sequence.
      ASSERT_GE(cut.text.size() + 3, std::min(limit, whole.text.size()));
    }
  }
}

}  // namespace
}  // namespace alerting
