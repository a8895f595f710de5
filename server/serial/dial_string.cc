// SPDX-License-Identifier: MIT
#include "server/serial/dial_string.h"

#include <algorithm>

namespace alertserver {
namespace {

std::string Dialed(std::string_view text) {
  constexpr std::string_view kDialed = "0123456789*#,@!";
  std::string kept;
  std::copy_if(text.begin(), text.end(), std::back_inserter(kept), [](char c) { return kDialed.find(c) != kDialed.npos; });
  return kept;
}

std::string WithAccess(const DialLocation& place, std::string_view number) {
  const std::size_t end = number.find(')');
  if (!number.starts_with('(') || end == number.npos) return Dialed(place.localAccess) + Dialed(number);
  const std::string area = Dialed(number.substr(1, end - 1)), rest = Dialed(number.substr(end + 1));
  if (area == place.areaCode) return Dialed(place.localAccess) + rest;
  return Dialed(place.longDistanceAccess) + area + rest;
}

}  // namespace

std::string NumberFrom(const DialLocation* place, std::string_view number) {
  if (place == nullptr) return Dialed(number);
  return (place->hasCallWaiting ? Dialed(place->callWaitingDisable) : "") + WithAccess(*place, number);
}

std::string DialCommand(const ModemLink& modem, std::string_view number, std::string_view keyed) {
  std::string command = modem.dialPrefix;
  if (modem.location && !modem.location->toneDialing && command.ends_with("DT")) command.back() = 'P';
  const DialLocation* place = modem.location ? &*modem.location : nullptr;
  return command + NumberFrom(place, number) + std::string(keyed) + modem.dialSuffix;
}

std::string Pauses(std::uint32_t seconds) {
  constexpr std::uint32_t kLongest = 120;
  return std::string((std::min(seconds, kLongest) + 1) / 2, ',');
}

}  // namespace alertserver
