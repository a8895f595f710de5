// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// What is sent to a paging terminal, in the telocator alphanumeric protocol (TAP, version 1.8).

namespace alertserver {

/// The most characters of a block between STX and its end.
inline constexpr std::size_t kBlockSize = 250;

/// The text in the characters of the protocol, ASCII: ends of line become CR, what there is no character for becomes '?'.
std::string PagerText(std::string_view utf8);

/// Cuts a text into pages of at most `longest` characters; 0 for no limit. At least one page, which may be empty.
std::vector<std::string> Pages(std::string_view text, std::size_t longest);

/// A page for a pager as blocks: the pager's number is in the first. A block that another follows ends with ETB, the last
/// with ETX.
std::vector<std::string> PagerBlocks(std::string_view pager, std::string_view page);

/// The three characters behind a block: twelve bits of the sum of its bytes, from STX to its end.
std::string BlockChecksum(std::string_view block);

}  // namespace alertserver
