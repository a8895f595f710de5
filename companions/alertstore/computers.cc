// SPDX-License-Identifier: MIT
#include "companions/alertstore/computers.h"

#include <algorithm>

#include "platform/base/utf8.h"

namespace alertstore {
namespace {

/// kNotUnique when another computer than `id` bears the name.
Status CheckNameIsFree(const platform::GUID& id, std::string_view name) {
  std::vector<Computer> known;
  if (const Status status = ListComputers(known); status != kOk) return status;
  const auto bears_it = [&](const Computer& computer) {
    return computer.id != id && platform::EqualIgnoringCase(computer.name, name);
  };
  return std::ranges::any_of(known, bears_it) ? kNotUnique : kOk;
}

}  // namespace

const StoreSchema& ComputerSchema() {
  static const StoreSchema schema = NamedObjectSchema("Computers.dat");
  return schema;
}

Status AddComputer(const platform::GUID& id, std::string_view name) {
  const Status free = CheckNameIsFree(platform::kNullGuid, name);
  return free == kOk ? AddNamedObject(ComputerSchema(), id, name) : free;
}

Status RenameComputer(const platform::GUID& id, std::string_view name) {
  const Status free = CheckNameIsFree(id, name);
  return free == kOk ? RenameNamedObject(ComputerSchema(), id, name) : free;
}

Status RemoveComputer(const platform::GUID& id) { return RemoveNamedObject(ComputerSchema(), id); }

Status ListComputers(std::vector<Computer>& computers) {
  return ListNamedObjects(ComputerSchema(), computers);
}

}  // namespace alertstore
