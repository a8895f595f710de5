// SPDX-License-Identifier: MIT
#include "alerting/responses/keywords.h"

#include <algorithm>
#include <cstring>

#include "alerting/frame/strings.h"
#include "platform/base/utf8.h"

namespace alerting {
namespace {

constexpr std::uint32_t kKeywordCount = 13;

using KeywordTable = std::array<Keyword, kKeywordTableSize>;

KeywordTable& Table() {
  static KeywordTable table{};
  return table;
}

template <std::size_t N>
void CopyText(const std::string& text, char (&field)[N]) {
  const std::size_t length = platform::Utf8Prefix(text, N - 1);
  std::memset(field, 0, N);
  std::memcpy(field, text.data(), length);
}

const Keyword* FindById(std::uint32_t id) {
  for (const Keyword& keyword : Table()) {
    if (keyword.name[0] == '\0') return nullptr;
    if (keyword.id == id) return &keyword;
  }
  return nullptr;
}

/// A placeholder as the reader of a stored form takes it: where it stands and how long it is.
struct Placeholder {
  std::size_t pos, length;
};

/// Walks a stored form as ExpandKeywords reads it: finds the placeholder of `id` at or after `from`.
bool FindPlaceholder(std::string_view stored, std::size_t from, std::uint32_t id, Placeholder& found) {
  const char* format = KeywordFormat(id);
  if (format == nullptr) return false;
  const std::size_t pos = stored.find(format, from);
  if (pos == std::string_view::npos) return false;
  found = {pos, std::strlen(format)};
  return true;
}

}  // namespace

void BuildKeywordTable(const platform::Module& module) {
  KeywordTable& table = Table();
  table = KeywordTable{};
  for (std::uint32_t i = 0; i < kKeywordCount; ++i) {
    CopyText(module.String(kIdsKeywordName1 + static_cast<int>(i)), table[i].name);
    table[i].id = i + 1;
    CopyText(module.String(kIdsKeywordFormat1 + static_cast<int>(i)), table[i].format);
  }
}

const char* KeywordName(std::uint32_t id) {
  const Keyword* keyword = FindById(id);
  return keyword != nullptr ? keyword->name : nullptr;
}

const char* KeywordFormat(std::uint32_t id) {
  const Keyword* keyword = FindById(id);
  return keyword != nullptr ? keyword->format : nullptr;
}

int FindKeywordAt(std::string_view text, std::size_t pos) {
  const std::string_view rest = text.substr(std::min(pos, text.size()));
  const KeywordTable& table = Table();
  for (std::size_t i = 0; table[i].name[0] != '\0'; ++i)
    if (platform::StartsWithIgnoringCase(rest, table[i].name)) return static_cast<int>(i);
  return -1;
}

const Keyword& KeywordAt(int index) { return Table().at(static_cast<std::size_t>(index)); }

bool FormatMatchesAt(std::string_view text, std::size_t pos, std::uint32_t id) {
  const char* format = KeywordFormat(id);
  return format != nullptr && text.substr(std::min(pos, text.size())).starts_with(format);
}

std::string CollapseKeywords(std::string_view shown, KeywordIds& ids) {
  ids.fill(0);
  std::string stored;
  std::size_t count = 0;
  for (std::size_t pos = 0; pos < shown.size();) {
    const int index = shown[pos] == '<' && count < kMaxKeywords ? FindKeywordAt(shown, pos) : -1;
    if (index < 0) {
      stored += shown[pos++];
      continue;
    }
    const Keyword& keyword = KeywordAt(index);
    stored += keyword.format;
    ids[count++] = keyword.id;
    pos += std::strlen(keyword.name);
  }
  return stored;
}

std::string ExpandKeywords(std::string_view stored, const KeywordIds& ids) {
  std::string shown;
  std::size_t pos = 0;
  Placeholder next{};
  for (std::size_t k = 0; k < kMaxKeywords && FindPlaceholder(stored, pos, ids[k], next); ++k) {
    shown += stored.substr(pos, next.pos - pos);
    shown += KeywordName(ids[k]);
    pos = next.pos + next.length;
  }
  return shown.append(stored.substr(pos));
}

std::string FitStoredForm(std::string_view stored, KeywordIds& ids, std::size_t limit) {
  if (stored.size() <= limit) return std::string(stored);  // what fits is kept as it was given
  std::size_t length = platform::Utf8Prefix(stored, limit);
  std::size_t pos = 0, kept = 0;
  Placeholder next{};
  for (; kept < kMaxKeywords && FindPlaceholder(stored, pos, ids[kept], next); ++kept) {
    pos = next.pos + next.length;
    if (pos <= length) continue;
    length = std::min(length, next.pos);
    break;
  }
  std::fill(ids.begin() + static_cast<std::ptrdiff_t>(kept), ids.end(), 0);
  return std::string(stored.substr(0, length));
}

void FillKeywordList(platform::ui::ItemList& list) {
  for (const Keyword& keyword : Table()) {
    if (keyword.name[0] == '\0') break;
    list.Add(keyword.name, reinterpret_cast<platform::ui::ItemData>(&keyword));
  }
}

}  // namespace alerting
