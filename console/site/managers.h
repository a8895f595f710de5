// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "companions/alertstore/status.h"
#include "platform/base/guid.h"

// Alert managers, which the library only reads.

namespace site {

/// The longest name, in bytes.
inline constexpr std::size_t kLongestManagerName = 63;

/// kNotUnique for a name that is there, in either case.
alertstore::Status AddManager(const std::string& name, platform::GUID& id);
/// Renames it where its modems bear its name, too. The modems first, so that a run cut short can be repeated.
alertstore::Status RenameManager(const platform::GUID& id, const std::string& name);
/// The name of a modem that is attached to it, which keeps it from being removed; "" for none.
alertstore::Status FindModemOf(const platform::GUID& id, std::string& modem);
/// Why it cannot be removed, as a sentence: a modem would stay behind without the machine that it is attached to. "" when it
/// can; `status` is that of the stores.
std::string RemovalProblem(const platform::GUID& id, alertstore::Status& status);
/// Removes it, and before it the notes of what it delivers.
alertstore::Status RemoveManager(const platform::GUID& id);

}  // namespace site
