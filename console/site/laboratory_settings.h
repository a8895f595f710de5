// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "console/site/console_settings.h"
#include "console/site/laboratory_file.h"

// What a laboratory changes in the alert server's settings: the devices behind COM1 to COM4, and the ports of mail and traps.

namespace site {

/// The devices of the laboratory behind the ports COM1 to COM4, by the names that it has for them.
inline constexpr const char* kLaboratoryPorts[] = {"modem", "backup-modem", "pager", "printer"};

/// The settings that have the alert server meet the devices at `places`; all else in them stays. Throws a Failure where the
/// file that is there cannot be used.
ChangedSettings PlanSettings(const Json& places);
/// Throws a Failure where that cannot be written.
void WriteSettings(const ChangedSettings& settings);
/// The file as it was, byte by byte. Where somebody edited it meanwhile, only the values that are still the laboratory's give
/// way, and what was edited is told in `left`. Throws a Failure where the file cannot be written.
void PutSettingsBack(const ChangedSettings& settings, std::vector<std::string>& left);

}  // namespace site
