// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "companions/alertrecords/keyword_table.h"
#include "platform/base/module.h"
#include "platform/ui/lists.h"

namespace alerting {

using alertrecords::Keyword;
using alertrecords::KeywordIds;
using alertrecords::kMaxKeywords;

/// The library's keyword table. What follows looks into it; see KeywordTable for what the functions answer.
const alertrecords::KeywordTable& TheKeywords();

/// Fills the table from the module's strings; a load step.
void BuildKeywordTable(const platform::Module& module);

/// Name and placeholder of the keyword with that identifier, or null.
const char* KeywordName(std::uint32_t id);
const char* KeywordFormat(std::uint32_t id);

inline int FindKeywordAt(std::string_view text, std::size_t pos) {
  return TheKeywords().FindNameAt(text, pos);
}
/// The table row at an index that FindKeywordAt gave.
inline const Keyword& KeywordAt(int index) {
  return TheKeywords().Keywords()[static_cast<std::size_t>(index)];
}
inline bool FormatMatchesAt(std::string_view text, std::size_t pos, std::uint32_t id) {
  return TheKeywords().FormatMatchesAt(text, pos, id);
}

inline std::string CollapseKeywords(std::string_view shown, KeywordIds& ids) {
  return TheKeywords().Collapse(shown, ids);
}
inline std::string ExpandKeywords(std::string_view stored, const KeywordIds& ids) {
  return TheKeywords().Expand(stored, ids);
}
inline std::string FitStoredForm(std::string_view stored, KeywordIds& ids, std::size_t limit) {
  return TheKeywords().Fit(stored, ids, limit);
}

/// Adds every keyword name in table order; each item's data is its table row's address.
void FillKeywordList(platform::ui::ItemList& list);

}  // namespace alerting
