// SPDX-License-Identifier: MIT
#include "companions/dbconfig/service_types.h"

#include "companions/dbconfig/store_reader.h"

namespace dbconfig {
namespace {

using namespace alertstore;  // NOLINT: the tables name two dozen records

template <class Record>
constexpr Field kLogin[] = {DBCONFIG_FIELD(Record, loginId), DBCONFIG_FIELD(Record, password)};

template <class Record>
constexpr Field kDialedLogin[] = {DBCONFIG_FIELD(Record, phoneNumber), DBCONFIG_FIELD(Record, loginId),
                                  DBCONFIG_FIELD(Record, password)};

constexpr Field kMhsSettings[] = {DBCONFIG_FIELD(ALRTMHSSERVICEREC, mhsDirectory),
                                  DBCONFIG_FIELD(ALRTMHSSERVICEREC, loginId),
                                  DBCONFIG_FIELD(ALRTMHSSERVICEREC, password)};

constexpr Field kSmtpSettings[] = {DBCONFIG_FIELD(ALRTSMTPSERVICEREC, smtpServer),
                                   DBCONFIG_FIELD(ALRTSMTPSERVICEREC, loginId),
                                   DBCONFIG_FIELD(ALRTSMTPSERVICEREC, password)};

constexpr Field kNumericPagerSettings[] = {DBCONFIG_FIELD(ALRTNPAGESERVICEREC, dialDelay)};

constexpr Field kAlphaPagerSettings[] = {DBCONFIG_FIELD(ALRTAPAGESERVICEREC, providerCompany),
                                         DBCONFIG_FIELD(ALRTAPAGESERVICEREC, providerLocation),
                                         DBCONFIG_FIELD(ALRTAPAGESERVICEREC, providerPhone),
                                         DBCONFIG_FIELD(ALRTAPAGESERVICEREC, maxTextLength)};

template <class Record>
constexpr MessageFields kBody = {
    DBCONFIG_FIELD_AS("body", Record, defaultBody), DBCONFIG_FIELD(Record, bodyKeywords), {}, {}, {}};

template <class Record>
constexpr MessageFields kBodySubjectPriority = {
    DBCONFIG_FIELD_AS("body", Record, defaultBody), DBCONFIG_FIELD(Record, bodyKeywords),
    DBCONFIG_FIELD_AS("subject", Record, defaultSubject), DBCONFIG_FIELD(Record, subjectKeywords),
    DBCONFIG_FIELD_AS("priority", Record, defaultPriority)};

// The settings of the chosen modem. Alphanumeric pagers alone keep another string than the dialing prefix.
#define DBCONFIG_MODEM_FIELDS(Record)                                                                   \
  DBCONFIG_FIELD(Record, modemId), DBCONFIG_FIELD(Record, modemName), DBCONFIG_FIELD(Record, baudRate), \
      DBCONFIG_FIELD(Record, dataBits), DBCONFIG_FIELD(Record, stopBitsCode),                           \
      DBCONFIG_FIELD(Record, parityCode), DBCONFIG_FIELD(Record, scriptFile),                           \
      DBCONFIG_FIELD(Record, initString), DBCONFIG_FIELD(Record, dialSuffix),                           \
      DBCONFIG_FIELD(Record, capabilities)

template <class Record>
constexpr Field kModem[] = {DBCONFIG_MODEM_FIELDS(Record), DBCONFIG_FIELD(Record, dialPrefix)};
constexpr Field kAlphaModem[] = {DBCONFIG_MODEM_FIELDS(ALRTAPAGESERVICEREC),
                                 DBCONFIG_FIELD(ALRTAPAGESERVICEREC, alphaInitString)};

// A user's entry: who, and the address on the service, which pagers call by other names.
#define DBCONFIG_USER_FIELDS(Record, address)                                  \
  DBCONFIG_FIELD(Record, userId), DBCONFIG_FIELD_AS("name", Record, userName), \
      DBCONFIG_FIELD_AS("address", Record, address), DBCONFIG_FLAG("enabled", Record, userEnabled)

constexpr Field kMailUser[] = {DBCONFIG_USER_FIELDS(MailUserRecord, userAddress)};
constexpr Field kMciUser[] = {DBCONFIG_USER_FIELDS(ALRTUSR_MCISERVICEREC, userAddress),
                              DBCONFIG_FLAG("emsEnabled", ALRTUSR_MCISERVICEREC, emsEnabled),
                              DBCONFIG_FIELD(ALRTUSR_MCISERVICEREC, emsAddress)};
constexpr Field kNumericPagerUser[] = {DBCONFIG_USER_FIELDS(ALRTUSR_NPAGESERVICEREC, phoneNumber)};
constexpr Field kAlphaPagerUser[] = {DBCONFIG_USER_FIELDS(ALRTUSR_APAGESERVICEREC, pinNumber)};

template <class Store>
constexpr MakeStoreReader kReader = &MakeReader<Store, Records>;

constexpr ServiceType kServiceTypes[] = {
    {.record_type = 1,
     .key = "mhs-mail",
     .read_specific = kReader<CAlertMHSNtfyServDB>,
     .settings = kMhsSettings,
     .message = kBodySubjectPriority<ALRTMHSSERVICEREC>,
     .modem = {},
     .read_users = kReader<CAlertUSR_MHSDB>,
     .user = kMailUser},
    {.record_type = 2,
     .key = "snmp-trap",
     .read_specific = kReader<CAlertSNMPNtfyServDB>,
     .settings = {},
     .message = kBodySubjectPriority<ALRTSNMPSERVICEREC>,
     .modem = {},
     .user = {}},
    {.record_type = 3,
     .key = "mci-mail",
     .read_specific = kReader<CAlertMCINtfyServDB>,
     .settings = kDialedLogin<ALRTMCISERVICEREC>,
     .message = kBodySubjectPriority<ALRTMCISERVICEREC>,
     .modem = kModem<ALRTMCISERVICEREC>,
     .read_users = kReader<CAlertUSR_MCIDB>,
     .user = kMciUser},
    {.record_type = 4,
     .key = "compuserve-mail",
     .read_specific = kReader<CAlertCOMPUSNtfyServDB>,
     .settings = kDialedLogin<ALRTCOMPUSSERVICEREC>,
     .message = kBodySubjectPriority<ALRTCOMPUSSERVICEREC>,
     .modem = kModem<ALRTCOMPUSSERVICEREC>,
     .read_users = kReader<CAlertUSR_COMPUDB>,
     .user = kMailUser},
    {.record_type = 5,
     .key = "internet-mail",
     .read_specific = kReader<CAlertSMTPNtfyServDB>,
     .settings = kSmtpSettings,
     .message = kBodySubjectPriority<ALRTSMTPSERVICEREC>,
     .modem = {},
     .read_users = kReader<CAlertUSR_SMTPDB>,
     .user = kMailUser},
    {.record_type = 6,
     .key = "microsoft-mail",
     .read_specific = kReader<CAlertMAPINtfyServDB>,
     .settings = kLogin<ProfileMailServiceRecord>,
     .message = kBodySubjectPriority<ProfileMailServiceRecord>,
     .modem = {},
     .read_users = kReader<CAlertUSR_MAPIDB>,
     .user = kMailUser},
    {.record_type = 7,
     .key = "cc-mail",
     .read_specific = kReader<CAlertCCMAILNtfyServDB>,
     .settings = kLogin<ProfileMailServiceRecord>,
     .message = kBodySubjectPriority<ProfileMailServiceRecord>,
     .modem = {},
     .read_users = kReader<CAlertUSR_CCMAILDB>,
     .user = kMailUser},
    // The two texts of a wave service are always empty, so there is nothing to tell.
    {.record_type = 8,
     .key = "wave-file",
     .read_specific = kReader<CAlertWAVENtfyServDB>,
     .settings = {},
     .message = {},
     .modem = {},
     .user = {}},
    {.record_type = 9,
     .key = "text-to-speech",
     .read_specific = kReader<CAlertTTSNtfyServDB>,
     .settings = {},
     .message = kBody<ALRTTTSSERVICEREC>,
     .modem = {},
     .user = {}},
    {.record_type = 11,
     .key = "alphanumeric-pager",
     .read_specific = kReader<CAlertAPAGENtfyServDB>,
     .settings = kAlphaPagerSettings,
     .message = kBody<ALRTAPAGESERVICEREC>,
     .modem = kAlphaModem,
     .read_users = kReader<CAlertUSR_APAGEDB>,
     .user = kAlphaPagerUser},
    {.record_type = 12,
     .key = "numeric-pager",
     .read_specific = kReader<CAlertNPAGENtfyServDB>,
     .settings = kNumericPagerSettings,
     .message = kBody<ALRTNPAGESERVICEREC>,
     .modem = kModem<ALRTNPAGESERVICEREC>,
     .read_users = kReader<CAlertUSR_NPAGEDB>,
     .user = kNumericPagerUser},
    {.record_type = 13,
     .key = "generic-port",
     .read_specific = kReader<CAlertGENPORTNtfyServDB>,
     .settings = {},
     .message = kBody<ALRTGENPORTSERVICEREC>,
     .modem = kModem<ALRTGENPORTSERVICEREC>,
     .user = {}},
    {.record_type = 14, .key = "program-launch", .settings = {}, .message = {}, .modem = {}, .user = {}},
};

}  // namespace

std::span<const ServiceType> ServiceTypes() { return kServiceTypes; }

const ServiceType* FindServiceType(std::uint32_t record_type) {
  for (const ServiceType& type : kServiceTypes)
    if (type.record_type == record_type) return &type;
  return nullptr;
}

}  // namespace dbconfig
