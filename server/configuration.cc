// SPDX-License-Identifier: MIT
#include "server/configuration.h"

#include <algorithm>
#include <map>

#include "platform/base/utf8.h"
#include "server/json_members.h"
#include "server/safe_file.h"

namespace alertserver {
namespace {

/// Ten thousand services with a thousand users each are larger than any site.
constexpr std::size_t kMaxSize = std::size_t{256} * 1024 * 1024;

using RowsById = std::map<std::string, const Json*>;

platform::GUID IdOf(const Json& object, const char* member) {
  return platform::GUID::Parse(TextOf(object, member)).value_or(platform::kNullGuid);
}

RowsById ById(const Json& file, const char* list) {
  RowsById rows;
  for (const Json& row : ListOf(file, list)) rows.emplace(TextOf(row, "id"), &row);
  return rows;
}

const Json* Find(const RowsById& rows, const std::string& id) {
  const auto found = rows.find(id);
  return id.empty() || found == rows.end() ? nullptr : found->second;
}

DialLocation ReadLocation(const Json& row) {
  return {TextOf(row, "name"),
          TextOf(row, "areaCode"),
          TextOf(row, "localAccess"),
          TextOf(row, "longDistanceAccess"),
          TextOf(row, "callWaitingDisable"),
          FlagOf(row, "hasCallWaiting"),
          FlagOf(row, "toneDialing"),
          SmallNumberOf(row, "countryCode")};
}

/// What modems and locations say, for the links of all services.
struct Devices {
  RowsById modems, locations;
};

void AddModemRecord(const Json& row, const Devices& devices, ModemLink& link) {
  link.is_known = true;
  link.enabled = FlagOf(row, "enabled");
  link.comPort = SmallNumberOf(row, "comPort");
  link.hangupString = TextOf(row, "hangupString");
  link.escapeString = TextOf(row, "escapeString");
  if (const Json* location = Find(devices.locations, TextOf(row, "locationId")))
    link.location = ReadLocation(*location);
}

/// Nothing where no modem is chosen.
std::optional<ModemLink> ReadModem(const Json& row, const Devices& devices) {
  if (TextOf(row, "modemId").empty()) return std::nullopt;
  ModemLink link;
  link.modemName = TextOf(row, "modemName");
  link.baudRate = SmallNumberOf(row, "baudRate");
  link.dataBits = SmallNumberOf(row, "dataBits");
  link.stopBitsCode = SmallNumberOf(row, "stopBitsCode");
  link.parityCode = SmallNumberOf(row, "parityCode");
  link.capabilities = SmallNumberOf(row, "capabilities");
  link.scriptFile = TextOf(row, "scriptFile");
  link.initString = TextOf(row, "initString");
  link.dialPrefix = TextOf(row, "dialPrefix");
  link.dialSuffix = TextOf(row, "dialSuffix");
  link.alphaInitString = TextOf(row, "alphaInitString");
  const Json* modem = Find(devices.modems, TextOf(row, "modemId"));
  if (modem != nullptr) AddModemRecord(*modem, devices, link);
  // The record of an alphanumeric pager keeps the initialization string for such pagers in the prefix's place.
  if (modem != nullptr && !row.contains("dialPrefix")) link.dialPrefix = TextOf(*modem, "dialPrefix");
  return link;
}

Service ReadService(const Json& row, const Devices& devices) {
  Service service;
  service.id = IdOf(row, "id");
  service.name = TextOf(row, "name");
  service.type = TextOf(row, "type");
  service.enabled = FlagOf(row, "enabled");
  service.has_settings = row.is_object() && row.contains("settings");
  service.settings = ObjectOf(row, "settings");
  service.modem = ReadModem(ObjectOf(row, "modem"), devices);
  service.backupModem = ReadModem(ObjectOf(row, "backupModem"), devices);
  for (const Json& user : ListOf(row, "users"))
    service.users.push_back(
        {IdOf(user, "userId"), TextOf(user, "name"), TextOf(user, "address"), FlagOf(user, "enabled")});
  return service;
}

void ReadDeliveries(const Json& manager, Configuration& configuration) {
  for (const Json& row : ListOf(manager, "services"))
    configuration.deliveries.push_back(
        {TextOf(manager, "name"), IdOf(row, "serviceId"), FlagOf(row, "backup")});
}

Configuration Read(const Json& file) {
  Configuration configuration;
  const Devices devices{ById(file, "modems"), ById(file, "locations")};
  for (const Json& row : ListOf(file, "services"))
    configuration.services.push_back(ReadService(row, devices));
  for (const Json& row : ListOf(file, "alertManagers")) ReadDeliveries(row, configuration);
  for (const Json& row : ListOf(file, "snmpManagers"))
    configuration.snmpManagers.push_back(
        {TextOf(row, "computer"), TextOf(row, "address"), TextOf(row, "community"), FlagOf(row, "enabled")});
  return configuration;
}

}  // namespace

std::string Service::Text(const char* member) const { return TextOf(settings, member); }
std::uint32_t Service::Number(const char* member) const { return SmallNumberOf(settings, member); }

const User* Service::FindUser(const platform::GUID& user) const {
  const auto found = std::ranges::find(users, user, &User::userId);
  return found != users.end() ? &*found : nullptr;
}

const Service* Configuration::FindService(const platform::GUID& id) const {
  const auto found = std::ranges::find(services, id, &Service::id);
  return found != services.end() ? &*found : nullptr;
}

bool Configuration::Delivers(const std::string& manager, const platform::GUID& service, bool backup) const {
  return std::ranges::any_of(deliveries, [&](const Delivery& delivery) {
    return delivery.backup == backup && delivery.service == service &&
           platform::EqualIgnoringCase(delivery.manager, manager);
  });
}

std::optional<Configuration> ParseConfiguration(const std::string& text, std::string& problem) {
  const Json file = ParseObject(text);
  const bool is_ours = TextOf(file, "format") == "alerting-configuration" && NumberOf(file, "version") == 1;
  if (!is_ours) problem = "it is damaged, or no configuration of a version that this server knows";
  return is_ours ? std::optional(Read(file)) : std::nullopt;
}

std::optional<Configuration> ReadConfiguration(const std::string& path, std::string& problem) {
  std::string text;
  if (!ReadSafeFile(path, kMaxSize, text, problem)) return std::nullopt;
  return ParseConfiguration(text, problem);
}

}  // namespace alertserver
