// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "platform/base/guid.h"

// What the server reads in alert-managers.json (docs/configuration-file.md). Members bear the names that they have there.

namespace alertserver {

using Json = nlohmann::ordered_json;

/// The place a modem dials from.
struct DialLocation {
  std::string name, areaCode, localAccess, longDistanceAccess, callWaitingDisable;
  bool hasCallWaiting = false, toneDialing = true;
  std::uint32_t countryCode = 0;
};

/// The modem that a service uses: what the service's record keeps of it and, behind that, what only the modem's own
/// record says.
struct ModemLink {
  std::string modemName;
  std::uint32_t baudRate = 0, dataBits = 0, stopBitsCode = 0, parityCode = 0, capabilities = 0;
  std::string scriptFile, initString, dialPrefix, dialSuffix, alphaInitString;

  bool is_known = false;  ///< the modem's record is there, and with it what follows
  bool enabled = false;
  std::uint32_t comPort = 0;  ///< from 1 on
  std::string hangupString, escapeString;
  std::optional<DialLocation> location;
};

/// Of `capabilities`: the port is used directly, there is no modem.
inline constexpr std::uint32_t kDirectPort = 16;

struct User {
  platform::GUID userId{};
  std::string name, address;
  bool enabled = false;
};

struct Service {
  platform::GUID id{};
  std::string name, type;
  bool enabled = false;
  bool has_settings = false;  ///< false too for types that have none
  Json settings = Json::object();
  std::optional<ModemLink> modem, backupModem;
  std::vector<User> users;

  /// A text or number of `settings`; "" and 0 where there is none.
  std::string Text(const char* member) const;
  std::uint32_t Number(const char* member) const;
  /// Null where the user has no entry on the service.
  const User* FindUser(const platform::GUID& user) const;
};

struct SnmpManager {
  std::string computer, address, community;
  bool enabled = false;
};

/// One alert manager's part in one service.
struct Delivery {
  std::string manager;
  platform::GUID service{};
  bool backup = false;
};

struct Configuration {
  std::vector<Service> services;
  std::vector<Delivery> deliveries;
  std::vector<SnmpManager> snmpManagers;

  const Service* FindService(const platform::GUID& id) const;
  /// Whether a manager delivers a service in that role. Names of computers have no case.
  bool Delivers(const std::string& manager, const platform::GUID& service, bool backup) const;
};

/// Reads the file anew. Where that cannot be done, `problem` says why, in words that can follow "because".
std::optional<Configuration> ReadConfiguration(const std::string& path, std::string& problem);
/// The same, from the file's text.
std::optional<Configuration> ParseConfiguration(const std::string& text, std::string& problem);

}  // namespace alertserver
