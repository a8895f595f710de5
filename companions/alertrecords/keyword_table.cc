// SPDX-License-Identifier: MIT
#include "companions/alertrecords/keyword_table.h"

#include <algorithm>
#include <cstring>

#include "platform/base/utf8.h"

namespace alertrecords {
namespace {

template <std::size_t N>
void CopyText(std::string_view text, char (&field)[N]) {
  std::memset(field, 0, N);
  std::memcpy(field, text.data(), platform::Utf8Prefix(text, N - 1));
}

std::string_view From(std::string_view text, std::size_t pos) {
  return text.substr(std::min(pos, text.size()));
}

}  // namespace

void KeywordTable::Add(std::string_view name, std::string_view format) {
  Keyword& row = rows_.at(count_);
  CopyText(name, row.name);
  CopyText(format, row.format);
  row.id = static_cast<std::uint32_t>(++count_);
}

std::span<const Keyword> KeywordTable::Keywords() const {
  const auto end = std::ranges::find_if(rows_, [](const Keyword& row) { return row.name[0] == '\0'; });
  return {rows_.begin(), end};
}

const Keyword* KeywordTable::Find(std::uint32_t id) const {
  for (const Keyword& keyword : Keywords())
    if (keyword.id == id) return &keyword;
  return nullptr;
}

int KeywordTable::FindNameAt(std::string_view text, std::size_t pos) const {
  const std::span<const Keyword> keywords = Keywords();
  const auto stands_there = [rest = From(text, pos)](const Keyword& keyword) {
    return platform::StartsWithIgnoringCase(rest, keyword.name);
  };
  const auto found = std::ranges::find_if(keywords, stands_there);
  return found != keywords.end() ? static_cast<int>(found - keywords.begin()) : -1;
}

bool KeywordTable::FormatMatchesAt(std::string_view text, std::size_t pos, std::uint32_t id) const {
  const Keyword* keyword = Find(id);
  return keyword != nullptr && From(text, pos).starts_with(keyword->format);
}

std::string KeywordTable::Collapse(std::string_view shown, KeywordIds& ids) const {
  ids.fill(0);
  std::string stored;
  std::size_t k = 0;
  for (std::size_t pos = 0; pos < shown.size();) {
    const int index = shown[pos] == '<' && k < kMaxKeywords ? FindNameAt(shown, pos) : -1;
    if (index < 0) {
      stored += shown[pos++];
      continue;
    }
    const Keyword& keyword = rows_[static_cast<std::size_t>(index)];
    stored += keyword.format;
    ids[k++] = keyword.id;
    pos += std::strlen(keyword.name);
  }
  return stored;
}

std::size_t KeywordTable::PlaceholderAt(std::string_view stored, std::size_t pos, const KeywordIds& ids,
                                        std::size_t k) const {
  if (stored[pos] != '%' || k >= kMaxKeywords || !FormatMatchesAt(stored, pos, ids[k])) return 0;
  return std::strlen(Find(ids[k])->format);
}

std::string KeywordTable::Expand(std::string_view stored, const KeywordIds& ids) const {
  std::string shown;
  std::size_t k = 0;
  for (std::size_t pos = 0; pos < stored.size();) {
    if (const std::size_t length = PlaceholderAt(stored, pos, ids, k)) {
      shown += Find(ids[k++])->name;
      pos += length;
    } else {
      shown += stored[pos++];
    }
  }
  return shown;
}

std::string KeywordTable::Fit(std::string_view stored, KeywordIds& ids, std::size_t limit) const {
  if (stored.size() <= limit) return std::string(stored);  // what fits is kept as it was given
  std::size_t end = platform::Utf8Prefix(stored, limit);
  std::size_t kept = 0;
  for (std::size_t pos = 0; pos < end;) {
    const std::size_t length = PlaceholderAt(stored, pos, ids, kept);
    if (pos + length > end) {
      end = pos;
    } else if (length > 0) {
      pos += length;
      ++kept;
    } else {
      ++pos;
    }
  }
  std::fill(ids.begin() + static_cast<std::ptrdiff_t>(kept), ids.end(), 0);
  return std::string(stored.substr(0, end));
}

void KeywordTable::FillSlots(const KeywordIds& ids, alertstore::KeywordSlot (&slots)[kMaxKeywords]) const {
  for (std::size_t i = 0; i < kMaxKeywords; ++i) {
    const Keyword* keyword = Find(ids[i]);  // null for 0, whose slot stays all zero
    slots[i] = alertstore::KeywordSlot{};
    slots[i].id = ids[i];
    slots[i].text.Assign(keyword != nullptr ? keyword->name : "");
    slots[i].format.Assign(keyword != nullptr ? keyword->format : "");
  }
}

void FillResponseKeywords(const KeywordIds& ids, std::uint8_t (&bytes)[kMaxKeywords]) {
  for (std::size_t i = 0; i < kMaxKeywords; ++i) bytes[i] = static_cast<std::uint8_t>(ids[i]);
}

}  // namespace alertrecords
