// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace site {

/// A row of a table in comma-separated values. Fields between quotes may hold commas, line breaks and doubled quotes.
struct CsvRow {
  std::size_t line;  ///< the line of the file that it begins on, from 1
  std::vector<std::string> fields;
};

/// Hands the rows over, one after another, without those that are empty. Answers 0, or the line of a row with misplaced
/// quotes, where reading ends.
std::size_t ReadCsv(std::string_view text, const std::function<void(const CsvRow&)>& take);

}  // namespace site
