// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "companions/alertstore/status.h"
#include "platform/base/guid.h"

// What can be changed about a service without its settings. The library has read its services before: have it read
// them again (LibraryCalls::Reopen) after a change.

namespace site {

/// The longest name, in bytes.
inline constexpr std::size_t kLongestServiceName = 32;

/// Renames the service, and where the entries of its users, its responses and its alert managers bear its name. kNotUnique
/// for the name of another service, in either case.
alertstore::Status RenameService(const platform::GUID& id, const std::string& name);
/// Turns its own switch: whether alerts may be sent through it.
alertstore::Status SwitchService(const platform::GUID& id, bool on);

}  // namespace site
