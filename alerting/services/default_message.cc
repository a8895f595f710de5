// SPDX-License-Identifier: MIT
#include "alerting/services/default_message.h"

namespace alerting {

KeywordIds ReadKeywordSlots(const KeywordSlot (&keyword_slots)[kKeywordSlots]) {
  KeywordIds ids{};
  for (std::size_t i = 0; i < kMaxKeywords; ++i) ids[i] = keyword_slots[i].id;
  return ids;
}

void WriteKeywordSlots(const KeywordIds& ids, KeywordSlot (&keyword_slots)[kKeywordSlots]) {
  for (std::size_t i = 0; i < kMaxKeywords; ++i) {
    keyword_slots[i] = KeywordSlot{};
    const char* name = KeywordName(ids[i]);  // null for 0, whose slot stays all zero
    const char* format = KeywordFormat(ids[i]);
    keyword_slots[i].id = ids[i];
    keyword_slots[i].text.Assign(name != nullptr ? name : "");
    keyword_slots[i].format.Assign(format != nullptr ? format : "");
  }
}

void WriteResponseKeywords(const KeywordIds& ids, std::uint8_t (&bytes)[kMaxKeywords]) {
  for (std::size_t i = 0; i < kMaxKeywords; ++i) bytes[i] = static_cast<std::uint8_t>(ids[i]);
}

void InitResponseMessage(const DefaultMessage& message, ALERTRESPREC& response) {
  response.message.Assign(message.body);
  WriteResponseKeywords(message.bodyKeywords, response.messageKeywords);
}

void InitResponseSubject(const DefaultMessage& message, ALERTRESPREC& response) {
  response.subject.Assign(message.subject);
  WriteResponseKeywords(message.subjectKeywords, response.subjectKeywords);
}

}  // namespace alerting
