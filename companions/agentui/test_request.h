// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "companions/alertstore/records_common.h"
#include "platform/base/little_endian.h"

namespace agentui {

/// How a test is handed over. Memory is named by addresses of 32 bits (platform/base/low_memory.h).
struct TestRequest {
  platform::LittleU32 size;  ///< of the request
  platform::LittleU32 zeros[2];
  platform::LittleU32 record_address;  ///< the response as it is to be sent, 3989 bytes
  platform::LittleU32 text_address;    ///< an empty text; not looked at
};
static_assert(sizeof(TestRequest) == 20);

/// Copies the record that a request names. False, and `record` as it was, for a null or foreign request and for one
/// without a record.
bool ReadTestRequest(const void* request, alertstore::ALERTRESPREC& record);

/// Pagers dial first, so their tests take longer. `record_type` as records hold it.
bool IsPager(std::uint32_t record_type);

}  // namespace agentui
