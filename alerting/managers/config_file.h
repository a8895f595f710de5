// SPDX-License-Identifier: MIT
#pragma once

namespace alerting {

/// Has the configuration component rewrite the file that the alert managers read, under the wait cursor. A
/// failure shows its message; nothing depends on it.
void WriteAlertServerConfig();

}  // namespace alerting
