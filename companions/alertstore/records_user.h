// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

#include "companions/alertstore/record_fields.h"

// A user's entry on a service: one record in the user store of the service's type.

namespace alertstore {

/// The layout that five mail types share.
struct MailUserRecord {
  platform::GUID guid;                   ///< identity, assigned by the store
  platform::GUID userId;                 ///< the console user
  platform::FixedText<261> userAddress;  ///< the user's address on the service, at most 260 bytes
  platform::FixedText<65> userName;      ///< the user's name, at most 64 bytes
  platform::LittleU32 userEnabled;       ///< 1 when the user is alerted through the service
};

/// MHS Mail.
struct ALRTUSR_MHSSERVICEREC : MailUserRecord {};

/// CompuServe Mail.
struct ALRTUSR_COMPUSERVICEREC : MailUserRecord {};

/// Internet Mail.
struct ALRTUSR_SMTPSERVICEREC : MailUserRecord {};

/// Microsoft Mail.
struct ALRTUSR_MAPISERVICEREC : MailUserRecord {};

/// cc:Mail.
struct ALRTUSR_CCMAILSERVICEREC : MailUserRecord {};

static_assert(IsRecord<MailUserRecord, 362>);
static_assert(IsRecord<ALRTUSR_MHSSERVICEREC, 362>);
static_assert(IsRecord<ALRTUSR_COMPUSERVICEREC, 362>);
static_assert(IsRecord<ALRTUSR_SMTPSERVICEREC, 362>);
static_assert(IsRecord<ALRTUSR_MAPISERVICEREC, 362>);
static_assert(IsRecord<ALRTUSR_CCMAILSERVICEREC, 362>);
static_assert(offsetof(MailUserRecord, guid) == 0);
static_assert(offsetof(MailUserRecord, userId) == 16);
static_assert(offsetof(MailUserRecord, userAddress) == 32);
static_assert(offsetof(MailUserRecord, userName) == 293);
static_assert(offsetof(MailUserRecord, userEnabled) == 358);

/// MCI Mail, with an address on another system.
struct ALRTUSR_MCISERVICEREC {
  platform::GUID guid;                   ///< identity, assigned by the store
  platform::GUID userId;                 ///< the console user
  platform::FixedText<261> userAddress;  ///< the user's address on the service, at most 260 bytes
  platform::FixedText<65> userName;      ///< the user's name, at most 64 bytes
  platform::LittleU32 userEnabled;       ///< 1 when the user is alerted through the service
  platform::LittleU32 emsEnabled;        ///< 1 when the user is reached through another mail system
  platform::FixedText<65> emsAddress;    ///< name of that system, at most 64 bytes
};

static_assert(IsRecord<ALRTUSR_MCISERVICEREC, 431>);
static_assert(offsetof(ALRTUSR_MCISERVICEREC, guid) == 0);
static_assert(offsetof(ALRTUSR_MCISERVICEREC, userId) == 16);
static_assert(offsetof(ALRTUSR_MCISERVICEREC, userAddress) == 32);
static_assert(offsetof(ALRTUSR_MCISERVICEREC, userName) == 293);
static_assert(offsetof(ALRTUSR_MCISERVICEREC, userEnabled) == 358);
static_assert(offsetof(ALRTUSR_MCISERVICEREC, emsEnabled) == 362);
static_assert(offsetof(ALRTUSR_MCISERVICEREC, emsAddress) == 366);

/// Numeric Pager.
struct ALRTUSR_NPAGESERVICEREC {
  platform::GUID guid;                  ///< identity, assigned by the store
  platform::GUID userId;                ///< the console user
  platform::FixedText<26> phoneNumber;  ///< the number of the pager, at most 25 bytes
  platform::FixedText<65> userName;     ///< the user's name, at most 64 bytes
  platform::LittleU32 userEnabled;      ///< 1 when the user is alerted through the service
  std::uint8_t unused127[4];
};

static_assert(IsRecord<ALRTUSR_NPAGESERVICEREC, 131>);
static_assert(offsetof(ALRTUSR_NPAGESERVICEREC, guid) == 0);
static_assert(offsetof(ALRTUSR_NPAGESERVICEREC, userId) == 16);
static_assert(offsetof(ALRTUSR_NPAGESERVICEREC, phoneNumber) == 32);
static_assert(offsetof(ALRTUSR_NPAGESERVICEREC, userName) == 58);
static_assert(offsetof(ALRTUSR_NPAGESERVICEREC, userEnabled) == 123);
static_assert(offsetof(ALRTUSR_NPAGESERVICEREC, unused127) == 127);

/// Alphanumeric Pager.
struct ALRTUSR_APAGESERVICEREC {
  platform::GUID guid;    ///< identity, assigned by the store
  platform::GUID userId;  ///< the console user
  std::uint8_t unused32[16];
  platform::FixedText<65> userName;   ///< the user's name, at most 64 bytes
  platform::FixedText<29> pinNumber;  ///< the identification of the pager, at most 28 bytes
  platform::LittleU32 userEnabled;    ///< 1 when the user is alerted through the service
};

static_assert(IsRecord<ALRTUSR_APAGESERVICEREC, 146>);
static_assert(offsetof(ALRTUSR_APAGESERVICEREC, guid) == 0);
static_assert(offsetof(ALRTUSR_APAGESERVICEREC, userId) == 16);
static_assert(offsetof(ALRTUSR_APAGESERVICEREC, unused32) == 32);
static_assert(offsetof(ALRTUSR_APAGESERVICEREC, userName) == 48);
static_assert(offsetof(ALRTUSR_APAGESERVICEREC, pinNumber) == 113);
static_assert(offsetof(ALRTUSR_APAGESERVICEREC, userEnabled) == 142);

}  // namespace alertstore
