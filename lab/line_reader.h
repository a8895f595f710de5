// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lab {

/// Cuts what arrives into lines. Keeps no more of a line than its limit, so that nobody fills the memory with one that
/// never ends.
class LineReader {
 public:
  explicit LineReader(std::size_t limit) : limit_(limit) {}

  /// Takes bytes from the front of `bytes` up to the end of a line; answers the line without its end (LF or CR LF), or
  /// nothing when all bytes are taken and the line goes on.
  std::optional<std::string> Take(std::string_view& bytes);
  /// True when the line that was answered last was longer than the limit, and is not whole.
  bool WasCut() const { return was_cut_; }

 private:
  void Keep(std::string_view piece);

  const std::size_t limit_;
  std::string line_;
  bool is_cut_ = false, was_cut_ = false;
};

}  // namespace lab
