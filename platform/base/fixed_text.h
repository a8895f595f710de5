// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>
#include <type_traits>

#include "platform/base/utf8.h"

namespace platform {

/// A zero-terminated text in a field of N bytes, as records hold it. Texts are UTF-8; a limit counts bytes.
template <std::size_t N>
class FixedText {
  static_assert(N > 1);

 public:
  static constexpr std::size_t kWidth = N;
  /// The longest text that fits, in bytes.
  static constexpr std::size_t kMaxLength = N - 1;

  /// Clears the whole field, then copies at most N-1 bytes; a UTF-8 sequence is never cut in two.
  void Assign(std::string_view text) {
    text = text.substr(0, std::min(text.find('\0'), text.size()));
    const std::size_t length = Utf8Prefix(text, kMaxLength);
    std::memset(bytes_, 0, N);
    std::memcpy(bytes_, text.data(), length);
  }

  /// The text up to the first zero byte, or the whole field where a foreign record has none.
  std::string_view View() const { return {bytes_, strnlen(bytes_, N)}; }

  bool Empty() const { return bytes_[0] == '\0'; }
  char* Data() { return bytes_; }
  const char* Data() const { return bytes_; }

 private:
  char bytes_[N];
};

static_assert(sizeof(FixedText<33>) == 33 && std::is_trivial_v<FixedText<33>>);

}  // namespace platform
