// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/base/guid.h"

namespace site {

/// The alert manager that takes over when another fails. The library has to be told at each start
/// (DomainServiceSetBackupServer); the choice is kept in `console.json` in the data directory. The null GUID for none.
platform::GUID ReadBackupManager();
/// "" or why it cannot be kept.
std::string WriteBackupManager(const platform::GUID& manager);

}  // namespace site
