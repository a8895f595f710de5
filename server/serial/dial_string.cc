// SPDX-License-Identifier: MIT
#include "server/serial/dial_string.h"

#include <algorithm>

namespace alertserver {
namespace {

std::string Dialed(std::string text) {
  std::erase_if(text,
                [](char c) { return std::string_view("0123456789*#,@!").find(c) == std::string_view::npos; });
  return text;
}

std::string WithAccess(const DialLocation& place, std::string_view number) {
  const std::size_t end = number.find(')');
  if (!number.starts_with('(') || end == number.npos)
    return Dialed(place.localAccess) + Dialed(std::string(number));
  const std::string area = Dialed(std::string(number.substr(1, end - 1))),
                    rest = Dialed(std::string(number.substr(end + 1)));
  if (area == place.areaCode) return Dialed(place.localAccess) + rest;
  return Dialed(place.longDistanceAccess) + area + rest;
}

}  // namespace

std::string NumberFrom(const DialLocation* place, std::string_view number) {
  if (place == nullptr) return Dialed(std::string(number));
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
