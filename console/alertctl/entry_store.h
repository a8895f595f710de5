// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "companions/alertstore/status.h"
#include "platform/base/guid.h"

namespace alertctl {

/// A user's entry on a service.
struct Entry {
  platform::GUID service;
  std::string service_name;
  std::uint32_t record_type;
  platform::GUID user;
  std::string user_name;
  std::string address;
  bool enabled;
};

/// True when services of the type have users.
bool HasUsers(std::uint32_t record_type);
/// The longest address that an entry of the type holds, in bytes; 0 where the type has no users.
std::size_t AddressLimit(std::uint32_t record_type);

/// Writes the user's record and the link between user and service: changes the records that are there and
/// adds those that are missing, both in one step when there are none. kInvalidArgument for a type without users.
alertstore::Status SaveEntry(const Entry& entry);

}  // namespace alertctl
