// SPDX-License-Identifier: MIT
#pragma once

namespace alerting {

/// Puts the library together: what the process does once before any other call, and once after the last. The
/// shared library runs them as it is loaded and unloaded.
bool Load();
void Unload();

}  // namespace alerting
