// SPDX-License-Identifier: MIT
#pragma once

#include "companions/alertstore/records.h"
#include "companions/dbconfig/fields.h"

// How the records that belong to no single service type appear in the configuration file.

namespace dbconfig {

inline constexpr Field kSnmpManagerFields[] = {
    DBCONFIG_FIELD_AS("id", alertstore::ALRTUSR_SNMPSERVICEREC, guid),
    DBCONFIG_FIELD(alertstore::ALRTUSR_SNMPSERVICEREC, computer),
    DBCONFIG_FIELD(alertstore::ALRTUSR_SNMPSERVICEREC, address),
    DBCONFIG_FIELD(alertstore::ALRTUSR_SNMPSERVICEREC, community),
    DBCONFIG_FIELD(alertstore::ALRTUSR_SNMPSERVICEREC, comment),
    DBCONFIG_FLAG("enabled", alertstore::ALRTUSR_SNMPSERVICEREC, enabled),
};

inline constexpr Field kModemFields[] = {
    DBCONFIG_FIELD_AS("id", alertstore::ALRTSERV_MODEM, guid),
    DBCONFIG_FIELD(alertstore::ALRTSERV_MODEM, name),
    DBCONFIG_FIELD_AS("managerId", alertstore::ALRTSERV_MODEM, managerGuid),
    DBCONFIG_FIELD(alertstore::ALRTSERV_MODEM, managerName),
    DBCONFIG_FIELD_AS("locationId", alertstore::ALRTSERV_MODEM, locationGuid),
    DBCONFIG_FLAG("enabled", alertstore::ALRTSERV_MODEM, enabled),
    DBCONFIG_FIELD(alertstore::ALRTSERV_MODEM, comPort),
    DBCONFIG_FIELD(alertstore::ALRTSERV_MODEM, baudRate),
    DBCONFIG_FIELD(alertstore::ALRTSERV_MODEM, capabilities),
    DBCONFIG_FIELD(alertstore::ALRTSERV_MODEM, initString),
    DBCONFIG_FIELD(alertstore::ALRTSERV_MODEM, hangupString),
    DBCONFIG_FIELD(alertstore::ALRTSERV_MODEM, escapeString),
    DBCONFIG_FIELD(alertstore::ALRTSERV_MODEM, dialPrefix),
    DBCONFIG_FIELD(alertstore::ALRTSERV_MODEM, dialSuffix),
    DBCONFIG_FIELD(alertstore::ALRTSERV_MODEM, alphaInitString),
    DBCONFIG_FIELD(alertstore::ALRTSERV_MODEM, comment),
};

inline constexpr Field kLocationFields[] = {
    DBCONFIG_FIELD_AS("id", alertstore::ALRTMODEM_LOCATION, guid),
    DBCONFIG_FIELD(alertstore::ALRTMODEM_LOCATION, name),
    DBCONFIG_FIELD(alertstore::ALRTMODEM_LOCATION, areaCode),
    DBCONFIG_FIELD(alertstore::ALRTMODEM_LOCATION, localAccess),
    DBCONFIG_FIELD(alertstore::ALRTMODEM_LOCATION, longDistanceAccess),
    DBCONFIG_FLAG("hasCallWaiting", alertstore::ALRTMODEM_LOCATION, hasCallWaiting),
    DBCONFIG_FIELD(alertstore::ALRTMODEM_LOCATION, callWaitingDisable),
    DBCONFIG_FLAG("toneDialing", alertstore::ALRTMODEM_LOCATION, toneDialing),
    DBCONFIG_FIELD(alertstore::ALRTMODEM_LOCATION, countryCode),
    DBCONFIG_FIELD(alertstore::ALRTMODEM_LOCATION, countryId),
};

inline constexpr Field kProviderFields[] = {
    DBCONFIG_FIELD_AS("id", alertstore::ALRTAPAGE_SERVICE_PROVIDER_REC, guid),
    DBCONFIG_FIELD(alertstore::ALRTAPAGE_SERVICE_PROVIDER_REC, company),
    DBCONFIG_FIELD(alertstore::ALRTAPAGE_SERVICE_PROVIDER_REC, regionA),
    DBCONFIG_FIELD(alertstore::ALRTAPAGE_SERVICE_PROVIDER_REC, regionB),
    DBCONFIG_FIELD(alertstore::ALRTAPAGE_SERVICE_PROVIDER_REC, phone),
    DBCONFIG_FIELD(alertstore::ALRTAPAGE_SERVICE_PROVIDER_REC, baudRate),
    DBCONFIG_FIELD_AS("parityCode", alertstore::ALRTAPAGE_SERVICE_PROVIDER_REC, parity),
    DBCONFIG_FIELD(alertstore::ALRTAPAGE_SERVICE_PROVIDER_REC, dataBits),
    DBCONFIG_FIELD_AS("stopBitsCode", alertstore::ALRTAPAGE_SERVICE_PROVIDER_REC, stopBits),
    DBCONFIG_FIELD(alertstore::ALRTAPAGE_SERVICE_PROVIDER_REC, maxTextLength),
};

}  // namespace dbconfig
