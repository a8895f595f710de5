// SPDX-License-Identifier: MIT
#include "companions/alertstore/console_users.h"

namespace alertstore {

const StoreSchema& ConsoleUserSchema() {
  static const StoreSchema schema = NamedObjectSchema("ConsoleUsers.dat");
  return schema;
}

Status QevGetUserName(const platform::GUID& user, std::uint32_t size, char* buffer) {
  return NameOfObject(ConsoleUserSchema(), user, size, buffer);
}

Status AddConsoleUser(const platform::GUID& id, std::string_view name) {
  return AddNamedObject(ConsoleUserSchema(), id, name);
}

Status RemoveConsoleUser(const platform::GUID& id) { return RemoveNamedObject(ConsoleUserSchema(), id); }

Status ListConsoleUsers(std::vector<ConsoleUser>& users) {
  return ListNamedObjects(ConsoleUserSchema(), users);
}

}  // namespace alertstore
