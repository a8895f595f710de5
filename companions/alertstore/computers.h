// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "companions/alertstore/named_objects.h"

// The computers that the site knows, for those who browse for one.

namespace alertstore {

using Computer = NamedObject;

/// How the store keeps them.
const StoreSchema& ComputerSchema();

/// As AddNamedObject, and kNotUnique for a name that is there, in either case.
Status AddComputer(const platform::GUID& id, std::string_view name);
/// As RenameNamedObject, and kNotUnique for the name of another computer.
Status RenameComputer(const platform::GUID& id, std::string_view name);
Status RemoveComputer(const platform::GUID& id);
/// In the order of adding; on failure `computers` stays as it was.
Status ListComputers(std::vector<Computer>& computers);

}  // namespace alertstore
