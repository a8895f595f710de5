// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "alerting/services/ntfy_service.h"

namespace alerting {

/// The serial line and modem of a dial-out service.
struct ModemSettings {
  GUID modem{};
  std::uint32_t baudRate = 0;      ///< bits per second
  std::uint32_t dataBits = 0;      ///< 6, 7 or 8
  std::uint32_t parityCode = 0;    ///< 0 none, 1 odd, 2 even
  std::uint32_t stopBitsCode = 0;  ///< 0 one, 1 one and a half, 2 two
  std::string scriptFile;
};

/// A user's entry on a service.
struct UserEntry {
  std::string name, address;
  std::uint32_t enabled = 0;
};

/// Adds what pages and panels ask of services with users or modems. The base answers for a type that has
/// neither.
class CNtfyServiceUserBase : public CNtfyService {
 public:
  using CNtfyService::CNtfyService;

  /// Settings of the primary or the backup record's modem.
  virtual bool GetModemSettings(ModemSettings&, bool /*backup*/) const { return true; }
  /// Takes over the settings and copies the modem's command strings; written by the next SaveRecords. False,
  /// after a message, when the modem store does not have that modem.
  virtual bool SetModemSettings(const ModemSettings&, const std::string& /*modem_name*/, bool /*backup*/) {
    return true;
  }

  /// The user's entry; for a user without one the console's name of the user, enabled, and the address as it
  /// was.
  virtual bool GetUserEntry(const GUID&, UserEntry&) { return true; }
  virtual bool SaveUserEntry(const GUID&, const UserEntry&) { return true; }
  /// An address that the user's records suggest, whether or not the user has a link to this service.
  virtual bool GetUserAddress(const GUID&, std::string&) { return false; }
};

/// The six mail types: priorities, and users that are added with one call.
class CNtfyServiceMailBase : public CNtfyServiceUserBase {
 public:
  using CNtfyServiceUserBase::CNtfyServiceUserBase;

  bool FillPriorityList(ui::ComboBox& combo, std::uint32_t current) override;
  bool InitWithDefaultMessage(ALERTRESPREC& response) const override;

  virtual bool AddUserWithLink(const std::string& name, const std::string& address, const GUID& user) = 0;
  /// Addressing of the user through another mail system (MCI Mail).
  virtual bool GetUserExtra(std::uint32_t& /*ems_enabled*/, std::string& /*ems_address*/, const GUID&) {
    return true;
  }
  virtual bool SetUserExtra(std::uint32_t /*ems_enabled*/, const std::string& /*ems_address*/, const GUID&) {
    return true;
  }

 private:
  std::vector<std::string> priority_names_;
};

}  // namespace alerting
