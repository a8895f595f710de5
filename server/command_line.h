// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace alertserver {

/// The words of a command line: apart by blanks, tabs and ends of line; "..." holds a word together, and \" inside it is
/// a quotation mark. Nothing else means anything: there is no shell. Nothing where a quotation mark is not closed.
std::optional<std::vector<std::string>> SplitCommandLine(std::string_view text);

/// One line that shows where words begin and end.
std::string JoinForShow(const std::vector<std::string>& words);

}  // namespace alertserver
