// SPDX-License-Identifier: MIT
#include "platform/base/utf8.h"

#include <algorithm>

namespace platform {
namespace {

unsigned char Byte(std::string_view text, std::size_t pos) { return static_cast<unsigned char>(text[pos]); }

bool IsContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

struct LeadByte {
  std::size_t length;           // of the whole sequence; 1 for a byte that begins none
  unsigned char lowest = 0x80;  // what the second byte may be: overlong forms and surrogates are no UTF-8
  unsigned char highest = 0xBF;
};

LeadByte Lead(unsigned char byte) {
  if (byte < 0xC2) return {1};
  if (byte < 0xE0) return {2};
  if (byte < 0xF0) {
    if (byte == 0xE0) return {3, 0xA0};
    if (byte == 0xED) return {3, 0x80, 0x9F};
    return {3};
  }
  if (byte == 0xF0) return {4, 0x90};
  if (byte == 0xF4) return {4, 0x80, 0x8F};
  return {byte < 0xF4 ? std::size_t{4} : std::size_t{1}};
}

// The length of the sequence that begins at `pos`; 1 where the bytes there are no UTF-8.
std::size_t SequenceLength(std::string_view text, std::size_t pos) {
  const LeadByte lead = Lead(Byte(text, pos));
  if (lead.length == 1) return 1;
  if (lead.length > text.size() - pos) return 1;
  if (Byte(text, pos + 1) < lead.lowest || Byte(text, pos + 1) > lead.highest) return 1;
  for (std::size_t i = 2; i < lead.length; ++i)
    if (!IsContinuation(Byte(text, pos + i))) return 1;
  return lead.length;
}

// The start of the sequence that holds the byte at `pos`, which may be `pos` itself.
std::size_t SequenceStart(std::string_view text, std::size_t pos) {
  for (std::size_t back = 1; back <= 3 && back <= pos; ++back) {
    if (!IsContinuation(Byte(text, pos - back + 1))) break;
    if (SequenceLength(text, pos - back) > back) return pos - back;
  }
  return pos;
}

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

std::size_t Utf8Prefix(std::string_view text, std::size_t limit) {
  if (text.size() <= limit) return text.size();
  return SequenceStart(text, limit);
}

std::size_t Utf8Previous(std::string_view text, std::size_t pos) {
  pos = std::min(pos, text.size());
  return pos == 0 ? 0 : SequenceStart(text, pos - 1);
}

std::size_t Utf8Next(std::string_view text, std::size_t pos) {
  if (pos >= text.size()) return text.size();
  const std::size_t start = SequenceStart(text, pos);
  return start + SequenceLength(text, start);
}

void Utf8Append(std::string& text, char32_t code_point) {
  const auto put = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  const auto continuation = [&](int shift) { put(0x80 | ((code_point >> shift) & 0x3F)); };
  if (code_point > 0x10FFFF || (code_point >= 0xD800 && code_point <= 0xDFFF)) code_point = 0xFFFD;
  if (code_point < 0x80) {
    put(code_point);
  } else if (code_point < 0x800) {
    put(0xC0 | (code_point >> 6));
    continuation(0);
  } else if (code_point < 0x10000) {
    put(0xE0 | (code_point >> 12));
    continuation(6);
    continuation(0);
  } else {
    put(0xF0 | (code_point >> 18));
    continuation(12);
    continuation(6);
    continuation(0);
  }
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, Lower, Lower);
}

bool LessIgnoringCase(std::string_view a, std::string_view b) {
  const auto order = [](char c) { return static_cast<unsigned char>(Lower(c)); };
  return std::ranges::lexicographical_compare(a, b, {}, order, order);
}

bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix) {
  return EqualIgnoringCase(text.substr(0, prefix.size()), prefix);
}

}  // namespace platform
