// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/ntfy_service.h"
#include "alerting/services/record_fields.h"

namespace alerting {

/// Identifiers out of a record's keyword slots.
KeywordIds ReadKeywordSlots(const KeywordSlot (&keyword_slots)[kKeywordSlots]);
/// Each slot anew, with the name and placeholder that the keyword table has for its identifier.
inline void WriteKeywordSlots(const KeywordIds& ids, KeywordSlot (&keyword_slots)[kKeywordSlots]) {
  TheKeywords().FillSlots(ids, keyword_slots);
}

/// Reads the default message that a record holds; a type without subject or priority gives none.
template <class Record>
void ReadDefaultMessage(const Record& record, DefaultMessage& message) {
  message.body = record.defaultBody.View();
  message.bodyKeywords = ReadKeywordSlots(record.bodyKeywords);
  if constexpr (kHas<Record, kSubject>) {
    message.subject = record.defaultSubject.View();
    message.priority = record.defaultPriority;
    message.subjectKeywords = ReadKeywordSlots(record.subjectKeywords);
  }
}

/// Puts a stored text and its identifiers into a field and its slots, cut together where the field is
/// too short.
template <class Text>
void WriteStoredText(const std::string& text, KeywordIds ids, Text& field,
                     KeywordSlot (&keyword_slots)[kKeywordSlots]) {
  field.Assign(FitStoredForm(text, ids, Text::kMaxLength));
  WriteKeywordSlots(ids, keyword_slots);
}

template <class Record>
void WriteDefaultMessage(const DefaultMessage& message, Record& record) {
  WriteStoredText(message.body, message.bodyKeywords, record.defaultBody, record.bodyKeywords);
  if constexpr (kHas<Record, kSubject>) {
    WriteStoredText(message.subject, message.subjectKeywords, record.defaultSubject, record.subjectKeywords);
    record.defaultPriority = message.priority;
  }
}

/// Identifiers as a response stores them.
KeywordIds ResponseKeywords(const std::uint8_t (&bytes)[kMaxKeywords]);

/// Puts message and keywords of a default message into a response.
void InitResponseMessage(const DefaultMessage& message, ALERTRESPREC& response);
/// The same for the subject.
void InitResponseSubject(const DefaultMessage& message, ALERTRESPREC& response);

}  // namespace alerting
