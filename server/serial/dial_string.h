// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "server/configuration.h"

namespace alertserver {

/// The number as it is dialed from a place: what switches call waiting off, then the access digits, then the number.
/// "(030)1234" names its area: in the place's own area it is dialed as local, without it; in another as long distance, with
/// it. Any other number is dialed as it is written, behind what reaches an outside line. Digits, *, #, pauses (,), waits (@)
/// and flashes (!) are dialed; other characters only part digits.
std::string NumberFrom(const DialLocation* place, std::string_view number);

/// The dial command: the record's prefix, with P for T where the place dials by pulses, the number, what is keyed behind it,
/// the suffix.
std::string DialCommand(const ModemLink& modem, std::string_view number, std::string_view keyed);

/// Pauses of two seconds, which is what modems take a comma for, for at least that many seconds.
std::string Pauses(std::uint32_t seconds);

}  // namespace alertserver
