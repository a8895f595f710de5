// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace alertstore {

/// Records of a store that scans passed over, because they have not the size of a record.
struct LeftOut {
  std::string store;  ///< the record file's name
  std::size_t records = 0;
};

/// What the last scans of this process left out, by store; empty where every record was read.
std::vector<LeftOut> LeftOutRecords();
/// "2 records in NtfyServDB.dat and 1 record in RespDB.dat cannot be read and are left out", or "" for none.
std::string DescribeLeftOut(const std::vector<LeftOut>& left_out);

// For engines. A record is told apart by a number of its own within its store.

/// A scan of the whole store begins.
void ForgetLeftOut(const std::string& store);
void NoteLeftOut(const std::string& store, std::int64_t record);

}  // namespace alertstore
