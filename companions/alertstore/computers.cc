// SPDX-License-Identifier: MIT
#include "companions/alertstore/computers.h"

#include <algorithm>

#include "platform/base/utf8.h"

namespace alertstore {

const StoreSchema& ComputerSchema() {
  static const StoreSchema schema = NamedObjectSchema("Computers.dat");
  return schema;
}

Status AddComputer(const platform::GUID& id, std::string_view name) {
  std::vector<Computer> known;
  if (const Status status = ListComputers(known); status != kOk) return status;
  const auto bears_it = [name](const Computer& computer) {
    return platform::EqualIgnoringCase(computer.name, name);
  };
  return std::ranges::any_of(known, bears_it) ? kNotUnique : AddNamedObject(ComputerSchema(), id, name);
}

Status RemoveComputer(const platform::GUID& id) { return RemoveNamedObject(ComputerSchema(), id); }

Status ListComputers(std::vector<Computer>& computers) {
  return ListNamedObjects(ComputerSchema(), computers);
}

}  // namespace alertstore
