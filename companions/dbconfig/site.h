// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "companions/alertstore/records.h"
#include "companions/alertstore/status.h"

namespace dbconfig {

/// A record as its bytes.
using RecordBytes = std::string;
using Records = std::vector<RecordBytes>;

/// All that the stores hold at one moment. Records are in the order in which they were added.
struct Site {
  std::vector<alertstore::ALRTNTFYSERV> services;
  std::vector<alertstore::ALERTRESPREC> responses;
  std::vector<alertstore::ALRTUSRINSTSERV> links;
  std::vector<alertstore::ALRT_SRV_CFGREC> managers;
  std::vector<alertstore::ALRTSERV_INST_NTFY_SERVREC> enabled_services;
  Records snmp_managers;
  Records modems;
  Records locations;
  Records providers;
  /// By `recordType`: the type's service-specific records and its users' records.
  std::map<std::uint32_t, Records> specific;
  std::map<std::uint32_t, Records> users;
};

/// Reads all stores at one moment, through store objects of its own. On failure, whose status is the answer,
/// `site` is half filled.
alertstore::Status ReadSite(Site& site);

}  // namespace dbconfig
