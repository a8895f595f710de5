// SPDX-License-Identifier: MIT
#pragma once

namespace alerting {

/// Puts the windows of all types in place: sheet, panels and tests stand side by side in service_ui_table.cc.
void InstallServiceUiTable();

}  // namespace alerting
