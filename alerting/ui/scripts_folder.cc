// SPDX-License-Identifier: MIT
#include "alerting/ui/scripts_folder.h"

#include "alerting/frame/companions.h"

namespace alerting {

std::string ScriptsFolder() {
  char buffer[4096] = "";
  TheCompanions().dbconfig->GetQEVDataDirectory(buffer, sizeof buffer);
  const std::string directory = buffer;
  // What is appended is written with the separators that the directory has.
  const char separator = directory.find('\\') != std::string::npos ? '\\' : '/';
  std::string folder = directory.substr(0, directory.rfind(separator) + 1);
  for (const char* part : {"console", "mgrs"}) (folder += part) += separator;
  return folder;
}

}  // namespace alerting
