// SPDX-License-Identifier: MIT
#include "alerting/services/default_message.h"

#include <algorithm>

namespace alerting {

KeywordIds ReadKeywordSlots(const KeywordSlot (&keyword_slots)[kKeywordSlots]) {
  KeywordIds ids{};
  for (std::size_t i = 0; i < kMaxKeywords; ++i) ids[i] = keyword_slots[i].id;
  return ids;
}

KeywordIds ResponseKeywords(const std::uint8_t (&bytes)[kMaxKeywords]) {
  KeywordIds ids{};
  std::copy(std::begin(bytes), std::end(bytes), ids.begin());
  return ids;
}

void InitResponseMessage(const DefaultMessage& message, ALERTRESPREC& response) {
  response.message.Assign(message.body);
  alertrecords::FillResponseKeywords(message.bodyKeywords, response.messageKeywords);
}

void InitResponseSubject(const DefaultMessage& message, ALERTRESPREC& response) {
  response.subject.Assign(message.subject);
  alertrecords::FillResponseKeywords(message.subjectKeywords, response.subjectKeywords);
}

}  // namespace alerting
