// SPDX-License-Identifier: MIT
#include "lab/line_reader.h"

#include <algorithm>
#include <utility>

namespace lab {

std::optional<std::string> LineReader::Take(std::string_view& bytes) {
  const std::size_t end = bytes.find('\n');
  Keep(bytes.substr(0, end));
  bytes.remove_prefix(end == bytes.npos ? bytes.size() : end + 1);
  if (end == bytes.npos) return std::nullopt;
  if (line_.ends_with('\r')) line_.pop_back();
  was_cut_ = std::exchange(is_cut_, false);
  return std::exchange(line_, "");
}

void LineReader::Keep(std::string_view piece) {
  const std::size_t room = limit_ - std::min(limit_, line_.size());
  if (piece.size() > room) is_cut_ = true;
  line_ += piece.substr(0, room);
}

}  // namespace lab
