// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/base/guid.h"

namespace alertrecords {

/// The identity of the response that tests of a type are sent as, by the type as records hold it. Starter data
/// bring the record under it, and the library finds it by it.
constexpr platform::GUID TestResponseId(std::uint32_t record_type) {
  return {platform::LittleU32(0x3217DA53U + record_type - 1),
          platform::LittleU16(0xADD1),
          platform::LittleU16(0x11CF),
          {0x81, 0x37, 0, 0, 0, 0, 0, 1}};
}

}  // namespace alertrecords
