// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace alertconsole {

class AlertingLibrary;

/// Writes pictures of the console's window, of each page of the sheets of all service types, and of the dialogs that
/// they open, into a folder, which is made where there is none, and prints their names. A message that appears is
/// printed and closed. The process's exit code: 0, or 1 after saying what went wrong.
int WriteScreenshots(AlertingLibrary& library, const QString& folder);

}  // namespace alertconsole
