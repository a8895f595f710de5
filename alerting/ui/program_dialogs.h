// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/ui/path_dialog.h"

namespace alerting {

/// Picks the program of a response.
class CProgOpenDialog : public CPathDialog {
 public:
  CProgOpenDialog(ui::Window* parent, std::string initial);
};

/// Picks a script; begins in the scripts folder and leaves the process's own folder as it is.
class CScriptOpenDialog : public CPathDialog {
 public:
  CScriptOpenDialog(ui::Window* parent, std::string initial);
};

}  // namespace alerting
