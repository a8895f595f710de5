// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

#include "companions/alertstore/record_fields.h"

// What the mail services keep beside their common record.

namespace alertstore {

/// MHS Mail.
struct ALRTMHSSERVICEREC {
  platform::GUID guid;                    ///< identity, assigned by the store
  platform::FixedText<261> mhsDirectory;  ///< server and volume path of the mail directory, at most 260 bytes
  platform::FixedText<49> loginId;        ///< account that sends, at most 48 bytes
  platform::FixedText<49> password;       ///< its password, at most 48 bytes
  platform::FixedText<1025> defaultBody;  ///< default message in stored form, at most 1024 bytes
  platform::FixedText<257> defaultSubject;  ///< default subject in stored form, at most 256 bytes
  platform::LittleU32 defaultPriority;      ///< index into the priority names
  KeywordSlot bodyKeywords[kKeywordSlots];  ///< the keyword behind each placeholder of the body, in order
  std::uint8_t unused2681[257];
  KeywordSlot subjectKeywords[kKeywordSlots];  ///< the same for the subject
};

static_assert(IsRecord<ALRTMHSSERVICEREC, 3958>);
static_assert(offsetof(ALRTMHSSERVICEREC, guid) == 0);
static_assert(offsetof(ALRTMHSSERVICEREC, mhsDirectory) == 16);
static_assert(offsetof(ALRTMHSSERVICEREC, loginId) == 277);
static_assert(offsetof(ALRTMHSSERVICEREC, password) == 326);
static_assert(offsetof(ALRTMHSSERVICEREC, defaultBody) == 375);
static_assert(offsetof(ALRTMHSSERVICEREC, defaultSubject) == 1400);
static_assert(offsetof(ALRTMHSSERVICEREC, defaultPriority) == 1657);
static_assert(offsetof(ALRTMHSSERVICEREC, bodyKeywords) == 1661);
static_assert(offsetof(ALRTMHSSERVICEREC, unused2681) == 2681);
static_assert(offsetof(ALRTMHSSERVICEREC, subjectKeywords) == 2938);

/// Internet Mail.
struct ALRTSMTPSERVICEREC {
  platform::GUID guid;                      ///< identity, assigned by the store
  platform::FixedText<256> smtpServer;      ///< name or address of the mail server, at most 255 bytes
  platform::FixedText<49> loginId;          ///< account that sends, at most 48 bytes
  platform::FixedText<49> password;         ///< its password, at most 48 bytes
  platform::FixedText<1025> defaultBody;    ///< default message in stored form, at most 1024 bytes
  platform::FixedText<257> defaultSubject;  ///< default subject in stored form, at most 256 bytes
  platform::LittleU32 defaultPriority;      ///< index into the priority names
  KeywordSlot bodyKeywords[kKeywordSlots];  ///< the keyword behind each placeholder of the body, in order
  std::uint8_t unused2676[257];
  KeywordSlot subjectKeywords[kKeywordSlots];  ///< the same for the subject
};

static_assert(IsRecord<ALRTSMTPSERVICEREC, 3953>);
static_assert(offsetof(ALRTSMTPSERVICEREC, guid) == 0);
static_assert(offsetof(ALRTSMTPSERVICEREC, smtpServer) == 16);
static_assert(offsetof(ALRTSMTPSERVICEREC, loginId) == 272);
static_assert(offsetof(ALRTSMTPSERVICEREC, password) == 321);
static_assert(offsetof(ALRTSMTPSERVICEREC, defaultBody) == 370);
static_assert(offsetof(ALRTSMTPSERVICEREC, defaultSubject) == 1395);
static_assert(offsetof(ALRTSMTPSERVICEREC, defaultPriority) == 1652);
static_assert(offsetof(ALRTSMTPSERVICEREC, bodyKeywords) == 1656);
static_assert(offsetof(ALRTSMTPSERVICEREC, unused2676) == 2676);
static_assert(offsetof(ALRTSMTPSERVICEREC, subjectKeywords) == 2933);

/// The layout that Microsoft Mail and cc:Mail share.
struct ProfileMailServiceRecord {
  platform::GUID guid;                      ///< identity, assigned by the store
  platform::FixedText<49> loginId;          ///< account or profile that sends, at most 48 bytes
  platform::FixedText<49> password;         ///< its password, at most 48 bytes
  platform::FixedText<1025> defaultBody;    ///< default message in stored form, at most 1024 bytes
  platform::FixedText<257> defaultSubject;  ///< default subject in stored form, at most 256 bytes
  platform::LittleU32 defaultPriority;      ///< index into the priority names
  KeywordSlot bodyKeywords[kKeywordSlots];  ///< the keyword behind each placeholder of the body, in order
  std::uint8_t unused2420[257];
  KeywordSlot subjectKeywords[kKeywordSlots];  ///< the same for the subject
};

/// Microsoft Mail.
struct ALRTMAPISERVICEREC : ProfileMailServiceRecord {};

/// cc:Mail.
struct ALRTCCMAILSERVICEREC : ProfileMailServiceRecord {};

static_assert(IsRecord<ProfileMailServiceRecord, 3697>);
static_assert(IsRecord<ALRTMAPISERVICEREC, 3697>);
static_assert(IsRecord<ALRTCCMAILSERVICEREC, 3697>);
static_assert(offsetof(ProfileMailServiceRecord, guid) == 0);
static_assert(offsetof(ProfileMailServiceRecord, loginId) == 16);
static_assert(offsetof(ProfileMailServiceRecord, password) == 65);
static_assert(offsetof(ProfileMailServiceRecord, defaultBody) == 114);
static_assert(offsetof(ProfileMailServiceRecord, defaultSubject) == 1139);
static_assert(offsetof(ProfileMailServiceRecord, defaultPriority) == 1396);
static_assert(offsetof(ProfileMailServiceRecord, bodyKeywords) == 1400);
static_assert(offsetof(ProfileMailServiceRecord, unused2420) == 2420);
static_assert(offsetof(ProfileMailServiceRecord, subjectKeywords) == 2677);

/// CompuServe Mail: dialed, with a subject of at most 40 bytes.
struct ALRTCOMPUSSERVICEREC {
  platform::GUID guid;                      ///< identity, assigned by the store
  platform::FixedText<26> phoneNumber;      ///< number of the service, at most 25 bytes
  platform::FixedText<49> loginId;          ///< account that sends, at most 48 bytes
  platform::FixedText<49> password;         ///< its password, at most 48 bytes
  platform::FixedText<1025> defaultBody;    ///< default message in stored form, at most 1024 bytes
  platform::FixedText<41> defaultSubject;   ///< default subject in stored form, at most 40 bytes
  platform::FixedText<65> modemName;        ///< name of the chosen modem, at most 64 bytes
  platform::GUID modemId;                   ///< identity of the chosen modem; null when none is chosen
  platform::LittleU32 defaultPriority;      ///< index into the priority names
  KeywordSlot bodyKeywords[kKeywordSlots];  ///< the keyword behind each placeholder of the body, in order
  platform::FixedText<261> scriptFile;      ///< dialing script, at most 260 bytes
  std::uint8_t unused2572[257];
  platform::LittleU32 baudRate;                ///< bits per second
  platform::LittleU32 dataBits;                ///< 6, 7 or 8
  platform::LittleU32 stopBitsCode;            ///< 0 one, 1 one and a half, 2 two
  platform::LittleU32 parityCode;              ///< 0 none, 1 odd, 2 even
  platform::FixedText<256> initString;         ///< copy of the modem's initialization string
  platform::FixedText<36> dialSuffix;          ///< copy of the modem's dialing suffix
  platform::LittleU32 capabilities;            ///< copy of the modem's capability bits
  platform::FixedText<36> dialPrefix;          ///< copy of the modem's dialing prefix
  KeywordSlot subjectKeywords[kKeywordSlots];  ///< the same for the subject
};

static_assert(IsRecord<ALRTCOMPUSSERVICEREC, 4197>);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, guid) == 0);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, phoneNumber) == 16);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, loginId) == 42);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, password) == 91);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, defaultBody) == 140);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, defaultSubject) == 1165);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, modemName) == 1206);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, modemId) == 1271);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, defaultPriority) == 1287);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, bodyKeywords) == 1291);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, scriptFile) == 2311);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, unused2572) == 2572);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, baudRate) == 2829);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, dataBits) == 2833);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, stopBitsCode) == 2837);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, parityCode) == 2841);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, initString) == 2845);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, dialSuffix) == 3101);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, capabilities) == 3137);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, dialPrefix) == 3141);
static_assert(offsetof(ALRTCOMPUSSERVICEREC, subjectKeywords) == 3177);

/// MCI Mail: dialed.
struct ALRTMCISERVICEREC {
  platform::GUID guid;                      ///< identity, assigned by the store
  platform::FixedText<26> phoneNumber;      ///< number of the service, at most 25 bytes
  platform::FixedText<49> loginId;          ///< account that sends, at most 48 bytes
  platform::FixedText<49> password;         ///< its password, at most 48 bytes
  platform::FixedText<1025> defaultBody;    ///< default message in stored form, at most 1024 bytes
  platform::FixedText<257> defaultSubject;  ///< default subject in stored form, at most 256 bytes
  platform::FixedText<65> modemName;        ///< name of the chosen modem, at most 64 bytes
  platform::GUID modemId;                   ///< identity of the chosen modem; null when none is chosen
  platform::LittleU32 defaultPriority;      ///< index into the priority names
  KeywordSlot bodyKeywords[kKeywordSlots];  ///< the keyword behind each placeholder of the body, in order
  platform::FixedText<261> scriptFile;      ///< dialing script, at most 260 bytes
  std::uint8_t unused2788[257];
  platform::LittleU32 baudRate;                ///< bits per second
  platform::LittleU32 dataBits;                ///< 6, 7 or 8
  platform::LittleU32 stopBitsCode;            ///< 0 one, 1 one and a half, 2 two
  platform::LittleU32 parityCode;              ///< 0 none, 1 odd, 2 even
  platform::FixedText<256> initString;         ///< copy of the modem's initialization string
  platform::FixedText<36> dialSuffix;          ///< copy of the modem's dialing suffix
  platform::LittleU32 capabilities;            ///< copy of the modem's capability bits
  platform::FixedText<36> dialPrefix;          ///< copy of the modem's dialing prefix
  KeywordSlot subjectKeywords[kKeywordSlots];  ///< the same for the subject
};

static_assert(IsRecord<ALRTMCISERVICEREC, 4413>);
static_assert(offsetof(ALRTMCISERVICEREC, guid) == 0);
static_assert(offsetof(ALRTMCISERVICEREC, phoneNumber) == 16);
static_assert(offsetof(ALRTMCISERVICEREC, loginId) == 42);
static_assert(offsetof(ALRTMCISERVICEREC, password) == 91);
static_assert(offsetof(ALRTMCISERVICEREC, defaultBody) == 140);
static_assert(offsetof(ALRTMCISERVICEREC, defaultSubject) == 1165);
static_assert(offsetof(ALRTMCISERVICEREC, modemName) == 1422);
static_assert(offsetof(ALRTMCISERVICEREC, modemId) == 1487);
static_assert(offsetof(ALRTMCISERVICEREC, defaultPriority) == 1503);
static_assert(offsetof(ALRTMCISERVICEREC, bodyKeywords) == 1507);
static_assert(offsetof(ALRTMCISERVICEREC, scriptFile) == 2527);
static_assert(offsetof(ALRTMCISERVICEREC, unused2788) == 2788);
static_assert(offsetof(ALRTMCISERVICEREC, baudRate) == 3045);
static_assert(offsetof(ALRTMCISERVICEREC, dataBits) == 3049);
static_assert(offsetof(ALRTMCISERVICEREC, stopBitsCode) == 3053);
static_assert(offsetof(ALRTMCISERVICEREC, parityCode) == 3057);
static_assert(offsetof(ALRTMCISERVICEREC, initString) == 3061);
static_assert(offsetof(ALRTMCISERVICEREC, dialSuffix) == 3317);
static_assert(offsetof(ALRTMCISERVICEREC, capabilities) == 3353);
static_assert(offsetof(ALRTMCISERVICEREC, dialPrefix) == 3357);
static_assert(offsetof(ALRTMCISERVICEREC, subjectKeywords) == 3393);

}  // namespace alertstore
