// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "platform/base/guid.h"

namespace alerting {

/// Spreads identities over hash tables; both halves count, since identities need not be random.
struct GuidHash {
  std::size_t operator()(const platform::GUID& id) const {
    std::uint64_t halves[2];
    std::memcpy(halves, &id, sizeof(halves));
    return static_cast<std::size_t>((halves[0] ^ (halves[1] >> 29)) * 0x9E3779B97F4A7C15ULL ^ halves[1]);
  }
};

}  // namespace alerting
