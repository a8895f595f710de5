// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace platform {

using UtcTime = std::chrono::system_clock::time_point;

/// "2026-03-01T08:30:05.250Z" (ISO 8601, UTC), to the millisecond.
std::string ToUtcText(UtcTime time);
/// Reads that form, with or without milliseconds; nothing for any other text, nor for a time before 1970 or after 2199.
std::optional<UtcTime> ParseUtcText(const std::string& text);

}  // namespace platform
