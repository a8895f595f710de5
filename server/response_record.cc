// SPDX-License-Identifier: MIT
#include "server/response_record.h"

#include <algorithm>
#include <cstring>

#include "platform/base/little_endian.h"
#include "server/plain_text.h"

namespace alertserver {
namespace {

template <class T>
T Value(std::string_view bytes, std::size_t offset) {
  T value;
  std::memcpy(&value, bytes.data() + offset, sizeof value);
  return value;
}

std::string Text(std::string_view bytes, std::size_t offset, std::size_t width) {
  const std::string_view field = bytes.substr(offset, width);
  return ValidUtf8(field.substr(0, std::min(field.find('\0'), width)));
}

KeywordIds Keywords(std::string_view bytes, std::size_t offset) { return Value<KeywordIds>(bytes, offset); }

}  // namespace

std::optional<ResponseRecord> DecodeResponse(std::string_view bytes) {
  using namespace offsets;
  if (bytes.size() != kRecordSize) return std::nullopt;
  ResponseRecord record;
  record.priority = Value<platform::LittleU16>(bytes, kPriority);
  record.user_name = Text(bytes, kUserName, kUserNameWidth);
  record.message = {Text(bytes, kMessage, kMessageWidth), Keywords(bytes, kMessageKeywords)};
  record.subject = {Text(bytes, kSubject, kSubjectWidth), Keywords(bytes, kSubjectKeywords)};
  record.user = Value<platform::GUID>(bytes, kUserId);
  record.service = Value<platform::GUID>(bytes, kServiceId);
  record.service_type = Value<platform::LittleU32>(bytes, kServiceType);
  return record;
}

}  // namespace alertserver
