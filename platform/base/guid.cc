// SPDX-License-Identifier: MIT
#include "platform/base/guid.h"

#include <sys/random.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace platform {
namespace {

constexpr std::string_view kTextForm = "{00000000-0000-0000-0000-000000000000}";

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

void FillRandom(void* bytes, std::size_t size) {
  auto* next = static_cast<std::uint8_t*>(bytes);
  while (size > 0) {
    const ssize_t count = getrandom(next, size, 0);
    // An identity that is not random would overwrite another record one day; there is nothing to go on with.
    if (count < 0 && errno != EINTR) std::abort();
    if (count <= 0) continue;
    next += count;
    size -= static_cast<std::size_t>(count);
  }
}

}  // namespace

bool GUID::IsNull() const { return *this == kNullGuid; }

std::string GUID::ToString() const {
  char text[kTextForm.size() + 1];
  std::snprintf(text, sizeof text, "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}", unsigned{data1},
                unsigned{data2}, unsigned{data3}, data4[0], data4[1], data4[2], data4[3], data4[4], data4[5],
                data4[6], data4[7]);
  return text;
}

std::optional<GUID> GUID::Parse(std::string_view text) {
  std::string_view form = kTextForm;
  if (text.size() == form.size() - 2) form = form.substr(1, text.size());
  if (text.size() != form.size()) return std::nullopt;
  std::array<std::uint8_t, 16> bytes{};  // in the order in which they are written
  std::size_t digits = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (form[i] != '0') {
      if (text[i] != form[i]) return std::nullopt;
      continue;
    }
    const int digit = HexDigit(text[i]);
    if (digit < 0) return std::nullopt;
    std::uint8_t& byte = bytes[digits++ / 2];
    byte = static_cast<std::uint8_t>(byte << 4 | digit);
  }
  GUID guid;
  guid.data1 =
      std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 | std::uint32_t{bytes[2]} << 8 | bytes[3];
  guid.data2 = static_cast<std::uint16_t>(bytes[4] << 8 | bytes[5]);
  guid.data3 = static_cast<std::uint16_t>(bytes[6] << 8 | bytes[7]);
  std::memcpy(guid.data4, &bytes[8], sizeof guid.data4);
  return guid;
}

GUID GUID::Generate() {
  GUID guid;
  FillRandom(&guid, sizeof guid);
  guid.data3 = static_cast<std::uint16_t>((guid.data3 & 0x0FFF) | 0x4000);   // version 4: random
  guid.data4[0] = static_cast<std::uint8_t>((guid.data4[0] & 0x3F) | 0x80);  // variant of RFC 4122
  return guid;
}

}  // namespace platform
