// SPDX-License-Identifier: MIT
#include "platform/base/base64.h"

#include <cstddef>
#include <cstdint>

namespace platform {
namespace {

constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// How many '=' end the text, two at most.
std::size_t Padding(std::string_view text) { return text.ends_with("==") ? 2 : text.ends_with("=") ? 1 : 0; }

/// Appends the bytes of four digits, of which the last `padding` stand for nothing.
bool AppendGroup(std::string_view digits, std::size_t padding, std::string& bytes) {
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    const std::size_t value = i < 4 - padding ? kDigits.find(digits[i]) : 0;
    if (value == std::string_view::npos) return false;
    bits = bits << 6 | static_cast<std::uint32_t>(value);
  }
  for (std::size_t i = 0; i < 3 - padding; ++i) bytes += static_cast<char>(bits >> (16 - 8 * i));
  return true;
}

}  // namespace

std::string EncodeBase64(std::string_view bytes) {
  std::string text;
  for (; !bytes.empty(); bytes.remove_prefix(bytes.size() < 3 ? bytes.size() : 3)) {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < 3; ++i)
      bits = bits << 8 | (i < bytes.size() ? static_cast<std::uint8_t>(bytes[i]) : 0U);
    for (std::size_t i = 0; i < 4; ++i) text += i <= bytes.size() ? kDigits[bits >> (18 - 6 * i) & 63] : '=';
  }
  return text;
}

std::optional<std::string> DecodeBase64(std::string_view text) {
  std::string bytes;
  if (text.size() % 4 != 0) return std::nullopt;
  for (; !text.empty(); text.remove_prefix(4))
    if (!AppendGroup(text, text.size() == 4 ? Padding(text) : 0, bytes)) return std::nullopt;
  return bytes;
}

}  // namespace platform
