// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "server/transport.h"

namespace alertserver {

/// The step of types that reach people: looks up the address of the recipient on the service. `address` must live as
/// long as the step.
Step FindRecipientStep(std::string& address);

/// The step of types that work on a computer: goes on where the target is this machine. `what`: what is done there, "A
/// sound can be played".
Step CheckTargetStep(std::string what);

}  // namespace alertserver
