// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/frame/stores.h"

// Which service-specific record has which of the fields that not all of them have.

namespace alerting {

/// Fields that a record has together or not at all.
enum RecordField : unsigned {
  kLogin = 1,
  kMhsDirectory = 2,
  kPhoneNumber = 4,
  kSmtpServer = 8,
  kWaveTexts = 16,
  kSpokenText = 32,
  kDialDelay = 64,
  kMessage = 128,
  kSubject = 256,  ///< with the priority
  kDialPrefix = 512,
  kAlphaInitString = 1024,
};

/// The members behind them; those of the General pages have namesakes in GeneralFields.
#define ALERTING_GENERAL_MEMBERS(MEMBER) \
  MEMBER(kLogin, loginId)                \
  MEMBER(kLogin, password)               \
  MEMBER(kMhsDirectory, mhsDirectory)    \
  MEMBER(kPhoneNumber, phoneNumber)      \
  MEMBER(kSmtpServer, smtpServer)        \
  MEMBER(kWaveTexts, text1)              \
  MEMBER(kWaveTexts, text2)              \
  MEMBER(kSpokenText, text)              \
  MEMBER(kDialDelay, dialDelay)
#define ALERTING_OTHER_MEMBERS(MEMBER) \
  MEMBER(kMessage, defaultBody)        \
  MEMBER(kMessage, bodyKeywords)       \
  MEMBER(kSubject, defaultSubject)     \
  MEMBER(kSubject, subjectKeywords)    \
  MEMBER(kSubject, defaultPriority)    \
  MEMBER(kDialPrefix, dialPrefix)      \
  MEMBER(kAlphaInitString, alphaInitString)

/// The table: one row a record. A record without a row does not compile.
template <class Record>
extern const unsigned kFieldsOf;
// clang-format off
template <> inline constexpr unsigned kFieldsOf<ALRTMHSSERVICEREC>     = kLogin | kMhsDirectory | kMessage | kSubject;
template <> inline constexpr unsigned kFieldsOf<ALRTSNMPSERVICEREC>    = kMessage | kSubject;
template <> inline constexpr unsigned kFieldsOf<ALRTMCISERVICEREC>     = kLogin | kPhoneNumber | kMessage | kSubject | kDialPrefix;
template <> inline constexpr unsigned kFieldsOf<ALRTCOMPUSSERVICEREC>  = kLogin | kPhoneNumber | kMessage | kSubject | kDialPrefix;
template <> inline constexpr unsigned kFieldsOf<ALRTSMTPSERVICEREC>    = kLogin | kSmtpServer | kMessage | kSubject;
template <> inline constexpr unsigned kFieldsOf<ALRTMAPISERVICEREC>    = kLogin | kMessage | kSubject;
template <> inline constexpr unsigned kFieldsOf<ALRTCCMAILSERVICEREC>  = kLogin | kMessage | kSubject;
template <> inline constexpr unsigned kFieldsOf<ALRTWAVESERVICEREC>    = kWaveTexts;
template <> inline constexpr unsigned kFieldsOf<ALRTTTSSERVICEREC>     = kSpokenText | kMessage;
template <> inline constexpr unsigned kFieldsOf<ALRTAPAGESERVICEREC>   = kMessage | kAlphaInitString;
template <> inline constexpr unsigned kFieldsOf<ALRTNPAGESERVICEREC>   = kDialDelay | kMessage | kDialPrefix;
template <> inline constexpr unsigned kFieldsOf<ALRTGENPORTSERVICEREC> = kMessage | kDialPrefix;
// clang-format on

/// Holds a record's row against its members, both ways: a member that was renamed, or that its row does not
/// name, would be passed over without a word.
template <class Record>
struct CheckedRow {
#define ALERTING_CHECK(field, member)                                                             \
  static_assert(((kFieldsOf<Record> & field) != 0) == requires(Record record) { record.member; }, \
                "the row of this record disagrees with it about " #member);
  ALERTING_GENERAL_MEMBERS(ALERTING_CHECK)
  ALERTING_OTHER_MEMBERS(ALERTING_CHECK)
#undef ALERTING_CHECK
  static constexpr unsigned kFields = kFieldsOf<Record>;
};

template <class Record, RecordField field>
inline constexpr bool kHas = (CheckedRow<Record>::kFields & field) != 0;

}  // namespace alerting
