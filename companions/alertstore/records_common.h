// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

#include "companions/alertstore/record_fields.h"

// The records that all services share: the service itself, the response, the link of a user to a service.

namespace alertstore {

/// A notification service as every type has it.
struct ALRTNTFYSERV {
  platform::GUID serviceId;         ///< identity
  platform::GUID specificRecordId;  ///< identity of the record in the type's own store
  platform::FixedText<33> name;     ///< service name, at most 32 bytes
  std::uint8_t unused65[65];
  platform::LittleU32 enabled;  ///< 1 when alerts may be sent through the service
  std::uint8_t unused134[2122];
  platform::LittleU32 virgin;             ///< 1 on a copy whose property sheet was never saved
  platform::LittleU32 recordType;         ///< service type code plus 1
  platform::GUID backupSpecificRecordId;  ///< identity of the specific record that holds the backup modem;
                                          ///< null when there is none
};

static_assert(IsRecord<ALRTNTFYSERV, 2280>);
static_assert(offsetof(ALRTNTFYSERV, serviceId) == 0);
static_assert(offsetof(ALRTNTFYSERV, specificRecordId) == 16);
static_assert(offsetof(ALRTNTFYSERV, name) == 32);
static_assert(offsetof(ALRTNTFYSERV, unused65) == 65);
static_assert(offsetof(ALRTNTFYSERV, enabled) == 130);
static_assert(offsetof(ALRTNTFYSERV, unused134) == 134);
static_assert(offsetof(ALRTNTFYSERV, virgin) == 2256);
static_assert(offsetof(ALRTNTFYSERV, recordType) == 2260);
static_assert(offsetof(ALRTNTFYSERV, backupSpecificRecordId) == 2264);

/// What is sent when an alert occurs: a message, a service and a person.
struct ALERTRESPREC {
  platform::GUID responseId;  ///< identity
  std::uint8_t unused16[976];
  platform::LittleU16
      responseType;  ///< the service's response type: 1 to a person, 4 program, 16 without a person
  platform::LittleU16 priority;       ///< value of the chosen priority
  platform::FixedText<258> userName;  ///< display name of the person to alert
  std::uint8_t unused1254[1];
  platform::FixedText<259> serviceName;  ///< name of the target service
  platform::FixedText<2049> message;     ///< message in stored form; for a program, its command line
  platform::FixedText<261> subject;      ///< subject in stored form; for a sound or a program, its file name
  platform::GUID userId;                 ///< the person to alert
  platform::GUID serviceId;              ///< the target service
  std::uint8_t unused3856[81];
  std::uint8_t messageKeywords[20];  ///< keyword identifiers of the message, in order; 0 for none
  std::uint8_t subjectKeywords[20];  ///< the same for the subject
  std::uint8_t unused3977[8];
  platform::LittleU32 serviceRecordType;  ///< type code plus 1 of the target service
};

static_assert(IsRecord<ALERTRESPREC, 3989>);
static_assert(offsetof(ALERTRESPREC, responseId) == 0);
static_assert(offsetof(ALERTRESPREC, unused16) == 16);
static_assert(offsetof(ALERTRESPREC, responseType) == 992);
static_assert(offsetof(ALERTRESPREC, priority) == 994);
static_assert(offsetof(ALERTRESPREC, userName) == 996);
static_assert(offsetof(ALERTRESPREC, unused1254) == 1254);
static_assert(offsetof(ALERTRESPREC, serviceName) == 1255);
static_assert(offsetof(ALERTRESPREC, message) == 1514);
static_assert(offsetof(ALERTRESPREC, subject) == 3563);
static_assert(offsetof(ALERTRESPREC, userId) == 3824);
static_assert(offsetof(ALERTRESPREC, serviceId) == 3840);
static_assert(offsetof(ALERTRESPREC, unused3856) == 3856);
static_assert(offsetof(ALERTRESPREC, messageKeywords) == 3937);
static_assert(offsetof(ALERTRESPREC, subjectKeywords) == 3957);
static_assert(offsetof(ALERTRESPREC, unused3977) == 3977);
static_assert(offsetof(ALERTRESPREC, serviceRecordType) == 3985);

/// The link between a user, a service and the user's record on it.
struct ALRTUSRINSTSERV {
  platform::GUID guid;                  ///< identity, assigned by the store
  platform::GUID serviceId;             ///< the service
  platform::GUID userRecordId;          ///< identity of the user's record in the type's user store
  platform::GUID userId;                ///< the console user
  platform::FixedText<33> serviceName;  ///< the service's name when the link was last written
  platform::LittleU32 userEnabled;      ///< 1 when the user is alerted through the service
  platform::LittleU32 recordType;       ///< type code plus 1 of the service
};

static_assert(IsRecord<ALRTUSRINSTSERV, 105>);
static_assert(offsetof(ALRTUSRINSTSERV, guid) == 0);
static_assert(offsetof(ALRTUSRINSTSERV, serviceId) == 16);
static_assert(offsetof(ALRTUSRINSTSERV, userRecordId) == 32);
static_assert(offsetof(ALRTUSRINSTSERV, userId) == 48);
static_assert(offsetof(ALRTUSRINSTSERV, serviceName) == 64);
static_assert(offsetof(ALRTUSRINSTSERV, userEnabled) == 97);
static_assert(offsetof(ALRTUSRINSTSERV, recordType) == 101);

}  // namespace alertstore
