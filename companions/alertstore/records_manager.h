// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

#include "companions/alertstore/record_fields.h"

// Who receives traps, which servers deliver alerts, and which services each of them has enabled.

namespace alertstore {

/// An SNMP manager: the receiver of traps.
struct ALRTUSR_SNMPSERVICEREC {
  platform::GUID guid;  ///< identity, assigned by the store
  std::uint8_t unused16[81];
  platform::FixedText<65> computer;   ///< name of its computer, at most 64 bytes
  platform::FixedText<29> address;    ///< network address, at most 28 bytes
  platform::FixedText<2049> comment;  ///< free text, at most 2048 bytes
  platform::LittleU32 enabled;        ///< 1 in every record made here
  platform::FixedText<65> community;  ///< community name, at most 64 bytes
};

static_assert(IsRecord<ALRTUSR_SNMPSERVICEREC, 2309>);
static_assert(offsetof(ALRTUSR_SNMPSERVICEREC, guid) == 0);
static_assert(offsetof(ALRTUSR_SNMPSERVICEREC, unused16) == 16);
static_assert(offsetof(ALRTUSR_SNMPSERVICEREC, computer) == 97);
static_assert(offsetof(ALRTUSR_SNMPSERVICEREC, address) == 162);
static_assert(offsetof(ALRTUSR_SNMPSERVICEREC, comment) == 191);
static_assert(offsetof(ALRTUSR_SNMPSERVICEREC, enabled) == 2240);
static_assert(offsetof(ALRTUSR_SNMPSERVICEREC, community) == 2244);

/// An alert manager: a server that delivers alerts.
struct ALRT_SRV_CFGREC {
  platform::GUID guid;                  ///< identity, assigned by the store
  platform::FixedText<64> managerName;  ///< name of its computer, at most 63 bytes
  std::uint8_t unused80[65];
};

static_assert(IsRecord<ALRT_SRV_CFGREC, 145>);
static_assert(offsetof(ALRT_SRV_CFGREC, guid) == 0);
static_assert(offsetof(ALRT_SRV_CFGREC, managerName) == 16);
static_assert(offsetof(ALRT_SRV_CFGREC, unused80) == 80);

/// A service that is enabled on an alert manager.
struct ALRTSERV_INST_NTFY_SERVREC {
  platform::GUID guid;                  ///< identity, assigned by the store
  platform::GUID serviceGuid;           ///< the service
  platform::GUID managerGuid;           ///< the alert manager
  platform::FixedText<33> serviceName;  ///< the service's name when the entry was made
  platform::GUID backupGuid;            ///< in a backup entry the service's backup record; else null
  platform::LittleU32 isBackup;         ///< 1 in a backup entry
};

static_assert(IsRecord<ALRTSERV_INST_NTFY_SERVREC, 101>);
static_assert(offsetof(ALRTSERV_INST_NTFY_SERVREC, guid) == 0);
static_assert(offsetof(ALRTSERV_INST_NTFY_SERVREC, serviceGuid) == 16);
static_assert(offsetof(ALRTSERV_INST_NTFY_SERVREC, managerGuid) == 32);
static_assert(offsetof(ALRTSERV_INST_NTFY_SERVREC, serviceName) == 48);
static_assert(offsetof(ALRTSERV_INST_NTFY_SERVREC, backupGuid) == 81);
static_assert(offsetof(ALRTSERV_INST_NTFY_SERVREC, isBackup) == 97);

}  // namespace alertstore
