// SPDX-License-Identifier: MIT
#include "companions/agentui/test_request.h"

#include <cstring>

namespace agentui {

bool ReadTestRequest(const void* request, alertstore::ALERTRESPREC& record) {
  if (request == nullptr) return false;
  TestRequest asked;
  std::memcpy(&asked.size, request, sizeof asked.size);  // a foreign request may be shorter
  if (asked.size != sizeof asked) return false;
  std::memcpy(&asked, request, sizeof asked);
  if (asked.record_address == 0) return false;
  std::memcpy(&record, reinterpret_cast<const void*>(std::uintptr_t{asked.record_address}), sizeof record);
  return true;
}

bool IsPager(std::uint32_t record_type) { return record_type == 11 || record_type == 12; }

}  // namespace agentui
