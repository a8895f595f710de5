// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <tuple>

#include "companions/alertstore/records.h"

// Records that tell from their bytes which write they come from, and whether all of them do.

namespace powercut {

inline auto Fields(alertstore::ALRTNTFYSERV& record) { return std::tie(record.enabled, record.name); }
inline auto Fields(alertstore::ALRTMHSSERVICEREC& record) {
  return std::tie(record.defaultPriority, record.defaultBody);
}
inline auto Fields(alertstore::ALERTRESPREC& record) {
  return std::tie(record.serviceRecordType, record.message);
}

template <class Record>
std::uint32_t VersionOf(Record record) {
  return std::get<0>(Fields(record));
}

template <class Record>
void Stamp(Record& record, std::uint32_t version) {
  std::get<0>(Fields(record)) = version;
  std::get<1>(Fields(record)).Assign(std::string(2000, static_cast<char>('a' + version % 26)));
}

template <class Record>
bool IsOfOneWrite(const Record& record) {
  Record expected = record;
  Stamp(expected, VersionOf(record));
  return std::memcmp(&expected, &record, sizeof record) == 0;
}

}  // namespace powercut
