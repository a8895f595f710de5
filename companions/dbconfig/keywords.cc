// SPDX-License-Identifier: MIT
#include "companions/dbconfig/keywords.h"

#include "companions/dbconfig/strings.h"

namespace dbconfig {
namespace {

alertrecords::KeywordTable MakeTable() {
  alertrecords::KeywordTable table;
  for (int id = 1; id <= static_cast<int>(alertrecords::kKeywordCount); ++id)
    table.Add(StringText(200 + id), StringText(220 + id));
  return table;
}

}  // namespace

const alertrecords::KeywordTable& Keywords() {
  static const alertrecords::KeywordTable table = MakeTable();
  return table;
}

}  // namespace dbconfig
