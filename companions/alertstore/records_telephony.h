// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

#include "companions/alertstore/record_fields.h"

// Modems and their types, dialing locations, paging providers.

namespace alertstore {

/// A modem; in the store of modem types, the template that modems are made from.
struct ALRTSERV_MODEM {
  platform::GUID guid;                   ///< identity, assigned by the store
  platform::GUID managerGuid;            ///< the alert manager that the modem is attached to
  platform::FixedText<65> managerName;   ///< that manager's name
  platform::FixedText<65> name;          ///< name of the modem or type, unique in its store, at most 64 bytes
  platform::FixedText<2049> comment;     ///< free text, at most 2048 bytes
  platform::LittleU32 enabled;           ///< 1 when the modem may be used
  platform::FixedText<256> initString;   ///< initialization string, at most 255 bytes
  platform::FixedText<36> hangupString;  ///< at most 35 bytes
  platform::FixedText<36> dialPrefix;    ///< at most 35 bytes
  platform::FixedText<36> dialSuffix;    ///< at most 35 bytes
  platform::FixedText<36> alphaInitString;  ///< initialization string for alpha pagers, at most 35 bytes
  platform::LittleU32 baudRate;             ///< bits per second
  platform::LittleU32 comPort;              ///< serial port, 1 to 4
  platform::LittleU32 capabilities;  ///< 1 numeric pager, 2 alpha pager, 4 online service, 8 voice; 16 alone
                                     ///< is direct port I/O
  platform::FixedText<36> escapeString;  ///< at most 35 bytes
  platform::GUID locationGuid;           ///< the location that the modem dials from
  platform::GUID modemTypeGuid;          ///< the type that the modem was made from
  std::uint8_t reserved[8];
};

static_assert(IsRecord<ALRTSERV_MODEM, 2703>);
static_assert(offsetof(ALRTSERV_MODEM, guid) == 0);
static_assert(offsetof(ALRTSERV_MODEM, managerGuid) == 16);
static_assert(offsetof(ALRTSERV_MODEM, managerName) == 32);
static_assert(offsetof(ALRTSERV_MODEM, name) == 97);
static_assert(offsetof(ALRTSERV_MODEM, comment) == 162);
static_assert(offsetof(ALRTSERV_MODEM, enabled) == 2211);
static_assert(offsetof(ALRTSERV_MODEM, initString) == 2215);
static_assert(offsetof(ALRTSERV_MODEM, hangupString) == 2471);
static_assert(offsetof(ALRTSERV_MODEM, dialPrefix) == 2507);
static_assert(offsetof(ALRTSERV_MODEM, dialSuffix) == 2543);
static_assert(offsetof(ALRTSERV_MODEM, alphaInitString) == 2579);
static_assert(offsetof(ALRTSERV_MODEM, baudRate) == 2615);
static_assert(offsetof(ALRTSERV_MODEM, comPort) == 2619);
static_assert(offsetof(ALRTSERV_MODEM, capabilities) == 2623);
static_assert(offsetof(ALRTSERV_MODEM, escapeString) == 2627);
static_assert(offsetof(ALRTSERV_MODEM, locationGuid) == 2663);
static_assert(offsetof(ALRTSERV_MODEM, modemTypeGuid) == 2679);
static_assert(offsetof(ALRTSERV_MODEM, reserved) == 2695);

/// A place to dial from.
struct ALRTMODEM_LOCATION {
  platform::GUID guid;                         ///< identity, assigned by the store
  platform::FixedText<65> name;                ///< unique, at most 64 bytes
  platform::FixedText<12> areaCode;            ///< at most 11 digits
  platform::FixedText<12> localAccess;         ///< dialed before a local number, at most 11 bytes
  platform::FixedText<12> longDistanceAccess;  ///< dialed before a long-distance number, at most 11 bytes
  platform::LittleU32 hasCallWaiting;          ///< 1 when the line has call waiting
  platform::FixedText<12> callWaitingDisable;  ///< dialed to switch call waiting off, at most 11 bytes
  platform::LittleU32 toneDialing;             ///< 1 tone, 0 pulse
  platform::LittleU16 countryCode;             ///< international dialing code
  platform::LittleU32 countryId;               ///< identifier of the country; 0 when none was ever chosen
};

static_assert(IsRecord<ALRTMODEM_LOCATION, 143>);
static_assert(offsetof(ALRTMODEM_LOCATION, guid) == 0);
static_assert(offsetof(ALRTMODEM_LOCATION, name) == 16);
static_assert(offsetof(ALRTMODEM_LOCATION, areaCode) == 81);
static_assert(offsetof(ALRTMODEM_LOCATION, localAccess) == 93);
static_assert(offsetof(ALRTMODEM_LOCATION, longDistanceAccess) == 105);
static_assert(offsetof(ALRTMODEM_LOCATION, hasCallWaiting) == 117);
static_assert(offsetof(ALRTMODEM_LOCATION, callWaitingDisable) == 121);
static_assert(offsetof(ALRTMODEM_LOCATION, toneDialing) == 133);
static_assert(offsetof(ALRTMODEM_LOCATION, countryCode) == 137);
static_assert(offsetof(ALRTMODEM_LOCATION, countryId) == 139);

/// A paging provider that can be chosen for an alphanumeric pager service.
struct ALRTAPAGE_SERVICE_PROVIDER_REC {
  platform::GUID guid;                ///< identity, assigned by the store
  platform::FixedText<65> company;    ///< name of the provider
  platform::FixedText<65> regionB;    ///< second part of its location
  platform::FixedText<77> regionA;    ///< first part of its location
  platform::FixedText<26> phone;      ///< number to dial
  platform::LittleU32 baudRate;       ///< bits per second
  platform::LittleU32 parity;         ///< 0 none, 1 odd, 2 even
  platform::LittleU32 dataBits;       ///< 6, 7 or 8
  platform::LittleU32 stopBits;       ///< 0 one, 1 one and a half, 2 two
  platform::LittleU32 maxTextLength;  ///< longest message, in characters
};

static_assert(IsRecord<ALRTAPAGE_SERVICE_PROVIDER_REC, 269>);
static_assert(offsetof(ALRTAPAGE_SERVICE_PROVIDER_REC, guid) == 0);
static_assert(offsetof(ALRTAPAGE_SERVICE_PROVIDER_REC, company) == 16);
static_assert(offsetof(ALRTAPAGE_SERVICE_PROVIDER_REC, regionB) == 81);
static_assert(offsetof(ALRTAPAGE_SERVICE_PROVIDER_REC, regionA) == 146);
static_assert(offsetof(ALRTAPAGE_SERVICE_PROVIDER_REC, phone) == 223);
static_assert(offsetof(ALRTAPAGE_SERVICE_PROVIDER_REC, baudRate) == 249);
static_assert(offsetof(ALRTAPAGE_SERVICE_PROVIDER_REC, parity) == 253);
static_assert(offsetof(ALRTAPAGE_SERVICE_PROVIDER_REC, dataBits) == 257);
static_assert(offsetof(ALRTAPAGE_SERVICE_PROVIDER_REC, stopBits) == 261);
static_assert(offsetof(ALRTAPAGE_SERVICE_PROVIDER_REC, maxTextLength) == 265);

}  // namespace alertstore
