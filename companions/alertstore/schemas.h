// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "companions/alertstore/records.h"
#include "companions/alertstore/store.h"

namespace alertstore {

// The schema of each record's store; defined in schemas.cc.

/// The schemas of all stores of a site: those below, the modem types, the console users and the computers.
std::vector<StoreSchema> SiteSchemas();

template <>
const StoreSchema& SchemaOf<ALRTNTFYSERV>();
template <>
const StoreSchema& SchemaOf<ALERTRESPREC>();
template <>
const StoreSchema& SchemaOf<ALRTUSRINSTSERV>();

template <>
const StoreSchema& SchemaOf<ALRTMHSSERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTSNMPSERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTMCISERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTCOMPUSSERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTSMTPSERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTMAPISERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTCCMAILSERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTWAVESERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTTTSSERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTAPAGESERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTNPAGESERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTGENPORTSERVICEREC>();

template <>
const StoreSchema& SchemaOf<ALRTUSR_MHSSERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTUSR_SNMPSERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTUSR_MCISERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTUSR_COMPUSERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTUSR_SMTPSERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTUSR_MAPISERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTUSR_CCMAILSERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTUSR_APAGESERVICEREC>();
template <>
const StoreSchema& SchemaOf<ALRTUSR_NPAGESERVICEREC>();

template <>
const StoreSchema& SchemaOf<ALRTSERV_MODEM>();
template <>
const StoreSchema& SchemaOf<ALRTMODEM_LOCATION>();
template <>
const StoreSchema& SchemaOf<ALRTAPAGE_SERVICE_PROVIDER_REC>();
template <>
const StoreSchema& SchemaOf<ALRT_SRV_CFGREC>();
template <>
const StoreSchema& SchemaOf<ALRTSERV_INST_NTFY_SERVREC>();

}  // namespace alertstore
