// SPDX-License-Identifier: MIT
#include "console/site/backup_manager.h"

#include "console/site/console_settings.h"

namespace site {
namespace {

constexpr char kSetting[] = "backupManager";

}  // namespace

platform::GUID ReadBackupManager() {
  const Json settings = ReadConsoleSettings();
  const auto value = settings.find(kSetting);
  if (value == settings.end() || !value->is_string()) return platform::kNullGuid;
  return platform::GUID::Parse(value->get<std::string>()).value_or(platform::kNullGuid);
}

std::string WriteBackupManager(const platform::GUID& manager) {
  return WriteConsoleSetting(kSetting, manager.ToString());
}

}  // namespace site
