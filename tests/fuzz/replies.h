// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <string>

/// What the other side of a line says, from the bytes of a fuzzer: replies apart by 0xFF.
inline std::deque<std::string> RepliesIn(const std::uint8_t* data, std::size_t size) {
  std::deque<std::string> replies(1);
  for (std::size_t i = 0; i < size; ++i) {
    if (data[i] == 0xFF)
      replies.emplace_back();
    else
      replies.back() += static_cast<char>(data[i]);
  }
  return replies;
}
