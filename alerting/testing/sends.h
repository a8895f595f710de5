// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/ntfy_service.h"

namespace alerting {

// A test alert: the test response of the service's type is written with recipient and text, the alert managers' file is
// rewritten, and the alert server is asked to run that response. The report comes later and is shown in a window of its own.
//
// Both answer true once the request was handed over; false, after a message, when the test response could not be read or
// written. Null texts leave the response's own. `dialog` is the window that sends, and may be null. They wait, with the
// windows painted, until the configuration is complete: as long as that takes, then six seconds, or ten.

/// To a user of the service, or to a computer for files: `target` with its name as the console knows the user.
bool SendStandardTest(CNtfyService& service, const GUID& target, const char* message,
                      const char* subject_or_file, std::uint16_t priority, ui::Window* dialog);

/// SNMP Trap, Generic Port, Text to Speech: a message alone, to a computer or to nobody.
bool SendComputerTest(CNtfyService& service, const GUID& target, const char* message, const char*,
                      std::uint16_t, ui::Window* dialog);

/// No report comes to the library any more, and none offers its windows; an unload step, since both would be where the
/// library was.
void ForgetTests();

}  // namespace alerting
