// SPDX-License-Identifier: MIT
#include "alerting/responses/keywords.h"

#include "alerting/frame/strings.h"

namespace alerting {
namespace {

alertrecords::KeywordTable& Table() {
  static alertrecords::KeywordTable table;
  return table;
}

}  // namespace

const alertrecords::KeywordTable& TheKeywords() { return Table(); }

void BuildKeywordTable(const platform::Module& module) {
  Table() = {};
  for (int i = 0; i < static_cast<int>(alertrecords::kKeywordCount); ++i)
    Table().Add(module.String(kIdsKeywordName1 + i), module.String(kIdsKeywordFormat1 + i));
}

const char* KeywordName(std::uint32_t id) {
  const Keyword* keyword = Table().Find(id);
  return keyword != nullptr ? keyword->name : nullptr;
}

const char* KeywordFormat(std::uint32_t id) {
  const Keyword* keyword = Table().Find(id);
  return keyword != nullptr ? keyword->format : nullptr;
}

void FillKeywordList(platform::ui::ItemList& list) {
  for (const Keyword& keyword : Table().Keywords())
    list.Add(keyword.name, reinterpret_cast<platform::ui::ItemData>(&keyword));
}

}  // namespace alerting
