// SPDX-License-Identifier: MIT
#include "alerting/ui/program_dialogs.h"

#include "alerting/frame/strings.h"
#include "alerting/ui/scripts_folder.h"

namespace alerting {

CProgOpenDialog::CProgOpenDialog(ui::Window* parent, std::string initial)
    : CPathDialog(parent, std::move(initial), {kIdsProgramFilters, kIdsProgramExtension, kIdsProgramTitle}) {}

CScriptOpenDialog::CScriptOpenDialog(ui::Window* parent, std::string initial)
    : CPathDialog(parent, std::move(initial), {kIdsScriptFilters, kIdsScriptExtension, kIdsScriptTitle}) {
  initial_directory = ScriptsFolder();
  keep_current_directory = true;
}

}  // namespace alerting
