// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/base/module.h"
#include "platform/ui/lists.h"

/// Message keywords: bracketed names that stand for a field of the alert, such as "<User Name>". Messages are
/// shown with the names and stored with short placeholders ("%s", "%ld") plus a list of the keywords'
/// identifiers in order of appearance.
namespace alerting {

constexpr std::size_t kMaxKeywords = 20;
/// One identifier per placeholder, in order; 0 where there is none.
using KeywordIds = std::array<std::uint32_t, kMaxKeywords>;

/// One row of the keyword table. The last filled row has identifier 0 and an empty name.
struct Keyword {
  char name[40];
  std::uint32_t id;
  char format[40];
};
constexpr std::size_t kKeywordTableSize = 15;

/// Fills the table from the module's strings; a load step.
void BuildKeywordTable(const platform::Module& module);

/// Name and placeholder of the keyword with that identifier, or null.
const char* KeywordName(std::uint32_t id);
const char* KeywordFormat(std::uint32_t id);

/// The table index of the first keyword whose name stands at `pos`, whatever its case; -1 if none does.
int FindKeywordAt(std::string_view text, std::size_t pos);
/// The table row at an index that FindKeywordAt gave.
const Keyword& KeywordAt(int index);
/// True when the text at `pos` begins with the placeholder of `id`; false for an unknown identifier.
bool FormatMatchesAt(std::string_view text, std::size_t pos, std::uint32_t id);

/// From the shown to the stored form: the first 20 keywords become placeholders, `ids` takes their
/// identifiers.
std::string CollapseKeywords(std::string_view shown, KeywordIds& ids);
/// From the stored to the shown form. A "%" that begins no placeholder of the next identifier stays as it is.
std::string ExpandKeywords(std::string_view stored, const KeywordIds& ids);

/// Cuts a stored form to at most `limit` bytes so that text and identifiers stay in step: no placeholder is
/// cut in two, and the identifiers of placeholders that fell away are zeroed.
std::string FitStoredForm(std::string_view stored, KeywordIds& ids, std::size_t limit);

/// Adds every keyword name in table order; each item's data is its table row's address.
void FillKeywordList(platform::ui::ItemList& list);

}  // namespace alerting
