// SPDX-License-Identifier: MIT
#include "lab/traps/ber.h"

namespace lab {
namespace {

/// The first number holds two: 40 times the first arc, which is at most 2, and the second.
std::string FirstArcs(std::uint64_t number) {
  const std::uint64_t first = number < 80 ? number / 40 : 2;
  return std::to_string(first) + "." + std::to_string(number - 40 * first);
}

}  // namespace

BerElement BerReader::Fail() {
  good_ = false;
  rest_ = {};
  return {};
}

/// Lengths of one byte, and of up to two bytes more: a datagram has no longer ones.
std::optional<std::size_t> BerReader::TakeLength() {
  if (rest_.empty()) return std::nullopt;
  std::size_t length = static_cast<std::uint8_t>(rest_.front());
  rest_.remove_prefix(1);
  if (length < 0x80) return length;
  const std::size_t count = length & 0x7F;
  if (count == 0 || count > 2 || rest_.size() < count) return std::nullopt;
  length = static_cast<std::size_t>(BerUnsigned(rest_.substr(0, count)));
  rest_.remove_prefix(count);
  return length;
}

BerElement BerReader::Next() {
  if (rest_.empty()) return Fail();
  const std::string_view start = rest_;
  rest_.remove_prefix(1);
  const std::optional<std::size_t> length = TakeLength();
  if (!length || *length > rest_.size()) return Fail();
  const std::size_t head = start.size() - rest_.size();
  rest_.remove_prefix(*length);
  return {static_cast<std::uint8_t>(start.front()), start.substr(head, *length),
          start.substr(0, head + *length)};
}

std::string_view BerReader::Next(std::uint8_t tag) {
  const BerElement element = Next();
  if (!good_ || element.tag != tag) return Fail().content;
  return element.content;
}

std::int64_t BerReader::NextInteger() {
  constexpr std::uint8_t kInteger = 0x02;
  const std::string_view content = Next(kInteger);
  if (content.empty() || content.size() > 8) Fail();
  return good_ ? BerInteger(content) : 0;
}

std::int64_t BerInteger(std::string_view content) {
  std::uint64_t value = !content.empty() && (content.front() & 0x80) != 0 ? ~std::uint64_t{0} : 0;
  for (const char c : content) value = value << 8 | static_cast<std::uint8_t>(c);
  return static_cast<std::int64_t>(value);
}

std::uint64_t BerUnsigned(std::string_view content) {
  std::uint64_t value = 0;
  for (const char c : content) value = value << 8 | static_cast<std::uint8_t>(c);
  return value;
}

std::string BerObjectIdentifier(std::string_view content) {
  std::string text;
  std::uint64_t arc = 0;
  for (const char c : content) {
    arc = arc << 7 | (static_cast<std::uint8_t>(c) & 0x7F);
    if ((c & 0x80) != 0) continue;
    text += text.empty() ? FirstArcs(arc) : "." + std::to_string(arc);
    arc = 0;
  }
  return content.empty() || (content.back() & 0x80) != 0 ? "" : text;
}

}  // namespace lab
