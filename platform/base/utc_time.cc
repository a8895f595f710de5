// SPDX-License-Identifier: MIT
#include "platform/base/utc_time.h"

#include <cstdio>
#include <ctime>

namespace platform {

using std::chrono::milliseconds;

namespace {

/// The clock counts nanoseconds and has no number for years behind 2262. What is added to a time has room below that.
constexpr std::chrono::seconds kYear2200(7258118400);

}  // namespace

std::string ToUtcText(UtcTime time) {
  const auto second = std::chrono::floor<std::chrono::seconds>(time);
  const std::time_t seconds = std::chrono::system_clock::to_time_t(second);
  std::tm fields{};
  gmtime_r(&seconds, &fields);
  char text[64], end[16];
  std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &fields);
  const auto rest = std::chrono::duration_cast<milliseconds>(time - second);
  std::snprintf(end, sizeof end, ".%03dZ", static_cast<int>(rest.count()));
  return std::string(text) + end;
}

std::optional<UtcTime> ParseUtcText(const std::string& text) {
  std::tm fields{};
  const char* rest = strptime(text.c_str(), "%Y-%m-%dT%H:%M:%S", &fields);
  if (rest == nullptr) return std::nullopt;
  int thousandths = 0, read = 0;
  if (*rest == '.' && std::sscanf(rest, ".%3d%n", &thousandths, &read) == 1 && read == 4) rest += read;
  if (std::string(rest) != "Z" || thousandths < 0) return std::nullopt;
  const std::chrono::seconds seconds(timegm(&fields));
  if (seconds < std::chrono::seconds(0) || seconds >= kYear2200) return std::nullopt;
  return UtcTime(seconds) + milliseconds(thousandths);
}

}  // namespace platform
