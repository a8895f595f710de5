// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

#include "companions/alertstore/record_fields.h"

// What the services that are no mail keep beside their common record. A program launch keeps nothing.

namespace alertstore {

/// SNMP Trap. Where the traps go is kept in the store of SNMP managers.
struct ALRTSNMPSERVICEREC {
  platform::GUID guid;  ///< identity, assigned by the store
  std::uint8_t unused16[2114];
  platform::FixedText<1025> defaultBody;       ///< default message in stored form, at most 1024 bytes
  platform::FixedText<257> defaultSubject;     ///< default subject in stored form, at most 256 bytes
  platform::LittleU32 defaultPriority;         ///< index into the priority names
  KeywordSlot bodyKeywords[kKeywordSlots];     ///< the keyword behind each placeholder of the body, in order
  KeywordSlot subjectKeywords[kKeywordSlots];  ///< the same for the subject
};

static_assert(IsRecord<ALRTSNMPSERVICEREC, 5456>);
static_assert(offsetof(ALRTSNMPSERVICEREC, guid) == 0);
static_assert(offsetof(ALRTSNMPSERVICEREC, unused16) == 16);
static_assert(offsetof(ALRTSNMPSERVICEREC, defaultBody) == 2130);
static_assert(offsetof(ALRTSNMPSERVICEREC, defaultSubject) == 3155);
static_assert(offsetof(ALRTSNMPSERVICEREC, defaultPriority) == 3412);
static_assert(offsetof(ALRTSNMPSERVICEREC, bodyKeywords) == 3416);
static_assert(offsetof(ALRTSNMPSERVICEREC, subjectKeywords) == 4436);

/// Wave File. Both texts are emptied by every save of the service.
struct ALRTWAVESERVICEREC {
  platform::GUID guid;              ///< identity, assigned by the store
  platform::FixedText<261> text1;   ///< kept empty
  platform::FixedText<1221> text2;  ///< kept empty
};

static_assert(IsRecord<ALRTWAVESERVICEREC, 1498>);
static_assert(offsetof(ALRTWAVESERVICEREC, guid) == 0);
static_assert(offsetof(ALRTWAVESERVICEREC, text1) == 16);
static_assert(offsetof(ALRTWAVESERVICEREC, text2) == 277);

/// Text to Speech.
struct ALRTTTSSERVICEREC {
  platform::GUID guid;                      ///< identity, assigned by the store
  platform::FixedText<1025> defaultBody;    ///< default message in stored form, at most 1024 bytes
  platform::FixedText<201> text;            ///< emptied by every save of the service
  KeywordSlot bodyKeywords[kKeywordSlots];  ///< the keyword behind each placeholder of the body, in order
  std::uint8_t unused2262[609];
};

static_assert(IsRecord<ALRTTTSSERVICEREC, 2871>);
static_assert(offsetof(ALRTTTSSERVICEREC, guid) == 0);
static_assert(offsetof(ALRTTTSSERVICEREC, defaultBody) == 16);
static_assert(offsetof(ALRTTTSSERVICEREC, text) == 1041);
static_assert(offsetof(ALRTTTSSERVICEREC, bodyKeywords) == 1242);
static_assert(offsetof(ALRTTTSSERVICEREC, unused2262) == 2262);

/// Numeric Pager: dialed.
struct ALRTNPAGESERVICEREC {
  platform::GUID guid;                      ///< identity, assigned by the store
  platform::FixedText<2049> defaultBody;    ///< numeric message, at most 2048 bytes
  platform::LittleU32 dialDelay;            ///< seconds to wait after dialing
  platform::FixedText<65> modemName;        ///< name of the chosen modem, at most 64 bytes
  platform::GUID modemId;                   ///< identity of the chosen modem; null when none is chosen
  KeywordSlot bodyKeywords[kKeywordSlots];  ///< the keyword behind each placeholder of the body, in order
  platform::FixedText<261> scriptFile;      ///< dialing script, at most 260 bytes
  platform::LittleU32 baudRate;             ///< bits per second
  platform::LittleU32 dataBits;             ///< 6, 7 or 8
  platform::LittleU32 stopBitsCode;         ///< 0 one, 1 one and a half, 2 two
  platform::LittleU32 parityCode;           ///< 0 none, 1 odd, 2 even
  platform::FixedText<256> initString;      ///< copy of the modem's initialization string
  platform::FixedText<36> dialSuffix;       ///< copy of the modem's dialing suffix
  platform::LittleU32 capabilities;         ///< copy of the modem's capability bits
  platform::FixedText<36> dialPrefix;       ///< copy of the modem's dialing prefix
};

static_assert(IsRecord<ALRTNPAGESERVICEREC, 3779>);
static_assert(offsetof(ALRTNPAGESERVICEREC, guid) == 0);
static_assert(offsetof(ALRTNPAGESERVICEREC, defaultBody) == 16);
static_assert(offsetof(ALRTNPAGESERVICEREC, dialDelay) == 2065);
static_assert(offsetof(ALRTNPAGESERVICEREC, modemName) == 2069);
static_assert(offsetof(ALRTNPAGESERVICEREC, modemId) == 2134);
static_assert(offsetof(ALRTNPAGESERVICEREC, bodyKeywords) == 2150);
static_assert(offsetof(ALRTNPAGESERVICEREC, scriptFile) == 3170);
static_assert(offsetof(ALRTNPAGESERVICEREC, baudRate) == 3431);
static_assert(offsetof(ALRTNPAGESERVICEREC, dataBits) == 3435);
static_assert(offsetof(ALRTNPAGESERVICEREC, stopBitsCode) == 3439);
static_assert(offsetof(ALRTNPAGESERVICEREC, parityCode) == 3443);
static_assert(offsetof(ALRTNPAGESERVICEREC, initString) == 3447);
static_assert(offsetof(ALRTNPAGESERVICEREC, dialSuffix) == 3703);
static_assert(offsetof(ALRTNPAGESERVICEREC, capabilities) == 3739);
static_assert(offsetof(ALRTNPAGESERVICEREC, dialPrefix) == 3743);

/// Generic Port: writes to a serial port or modem.
struct ALRTGENPORTSERVICEREC {
  platform::GUID guid;                      ///< identity, assigned by the store
  platform::FixedText<1025> defaultBody;    ///< default message in stored form, at most 1024 bytes
  KeywordSlot bodyKeywords[kKeywordSlots];  ///< the keyword behind each placeholder of the body, in order
  platform::FixedText<265> scriptFile;      ///< dialing script, at most 264 bytes
  platform::LittleU32 baudRate;             ///< bits per second
  platform::LittleU32 dataBits;             ///< 6, 7 or 8
  platform::LittleU32 stopBitsCode;         ///< 0 one, 1 one and a half, 2 two
  platform::LittleU32 parityCode;           ///< 0 none, 1 odd, 2 even
  platform::FixedText<256> initString;      ///< copy of the modem's initialization string
  platform::FixedText<36> dialSuffix;       ///< copy of the modem's dialing suffix
  platform::LittleU32 capabilities;         ///< copy of the modem's capability bits
  platform::FixedText<36> dialPrefix;       ///< copy of the modem's dialing prefix
  std::uint8_t unused2674[4];
  platform::FixedText<65> modemName;  ///< name of the chosen modem, at most 64 bytes
  platform::GUID modemId;             ///< identity of the chosen modem; null when none is chosen
};

static_assert(IsRecord<ALRTGENPORTSERVICEREC, 2759>);
static_assert(offsetof(ALRTGENPORTSERVICEREC, guid) == 0);
static_assert(offsetof(ALRTGENPORTSERVICEREC, defaultBody) == 16);
static_assert(offsetof(ALRTGENPORTSERVICEREC, bodyKeywords) == 1041);
static_assert(offsetof(ALRTGENPORTSERVICEREC, scriptFile) == 2061);
static_assert(offsetof(ALRTGENPORTSERVICEREC, baudRate) == 2326);
static_assert(offsetof(ALRTGENPORTSERVICEREC, dataBits) == 2330);
static_assert(offsetof(ALRTGENPORTSERVICEREC, stopBitsCode) == 2334);
static_assert(offsetof(ALRTGENPORTSERVICEREC, parityCode) == 2338);
static_assert(offsetof(ALRTGENPORTSERVICEREC, initString) == 2342);
static_assert(offsetof(ALRTGENPORTSERVICEREC, dialSuffix) == 2598);
static_assert(offsetof(ALRTGENPORTSERVICEREC, capabilities) == 2634);
static_assert(offsetof(ALRTGENPORTSERVICEREC, dialPrefix) == 2638);
static_assert(offsetof(ALRTGENPORTSERVICEREC, unused2674) == 2674);
static_assert(offsetof(ALRTGENPORTSERVICEREC, modemName) == 2678);
static_assert(offsetof(ALRTGENPORTSERVICEREC, modemId) == 2743);

/// Alphanumeric Pager: dials a paging provider.
struct ALRTAPAGESERVICEREC {
  platform::GUID guid;                         ///< identity, assigned by the store
  platform::FixedText<2049> providerLocation;  ///< the provider's location, at most 2048 bytes
  platform::FixedText<257> defaultBody;        ///< default message in stored form, at most 256 bytes
  platform::LittleU32 maxTextLength;           ///< longest message that the provider accepts
  platform::FixedText<65> providerCompany;     ///< the provider's name, at most 64 bytes
  platform::FixedText<26> providerPhone;       ///< the provider's number, at most 25 bytes
  platform::FixedText<65> modemName;           ///< name of the chosen modem, at most 64 bytes
  platform::GUID modemId;                      ///< identity of the chosen modem; null when none is chosen
  KeywordSlot bodyKeywords[kKeywordSlots];     ///< the keyword behind each placeholder of the body, in order
  platform::FixedText<265> scriptFile;         ///< dialing script, at most 264 bytes
  platform::LittleU32 baudRate;                ///< bits per second
  platform::LittleU32 dataBits;                ///< 6, 7 or 8
  platform::LittleU32 stopBitsCode;            ///< 0 one, 1 one and a half, 2 two
  platform::LittleU32 parityCode;              ///< 0 none, 1 odd, 2 even
  platform::FixedText<256> initString;         ///< copy of the modem's initialization string
  platform::FixedText<36> dialSuffix;          ///< copy of the modem's dialing suffix
  platform::LittleU32 capabilities;            ///< copy of the modem's capability bits
  platform::FixedText<36> alphaInitString;     ///< copy of the modem's alpha pager initialization string
};

static_assert(IsRecord<ALRTAPAGESERVICEREC, 4131>);
static_assert(offsetof(ALRTAPAGESERVICEREC, guid) == 0);
static_assert(offsetof(ALRTAPAGESERVICEREC, providerLocation) == 16);
static_assert(offsetof(ALRTAPAGESERVICEREC, defaultBody) == 2065);
static_assert(offsetof(ALRTAPAGESERVICEREC, maxTextLength) == 2322);
static_assert(offsetof(ALRTAPAGESERVICEREC, providerCompany) == 2326);
static_assert(offsetof(ALRTAPAGESERVICEREC, providerPhone) == 2391);
static_assert(offsetof(ALRTAPAGESERVICEREC, modemName) == 2417);
static_assert(offsetof(ALRTAPAGESERVICEREC, modemId) == 2482);
static_assert(offsetof(ALRTAPAGESERVICEREC, bodyKeywords) == 2498);
static_assert(offsetof(ALRTAPAGESERVICEREC, scriptFile) == 3518);
static_assert(offsetof(ALRTAPAGESERVICEREC, baudRate) == 3783);
static_assert(offsetof(ALRTAPAGESERVICEREC, dataBits) == 3787);
static_assert(offsetof(ALRTAPAGESERVICEREC, stopBitsCode) == 3791);
static_assert(offsetof(ALRTAPAGESERVICEREC, parityCode) == 3795);
static_assert(offsetof(ALRTAPAGESERVICEREC, initString) == 3799);
static_assert(offsetof(ALRTAPAGESERVICEREC, dialSuffix) == 4055);
static_assert(offsetof(ALRTAPAGESERVICEREC, capabilities) == 4091);
static_assert(offsetof(ALRTAPAGESERVICEREC, alphaInitString) == 4095);

}  // namespace alertstore
