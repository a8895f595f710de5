// SPDX-License-Identifier: MIT
#include "console/site/console_settings.h"

#include "platform/base/atomic_write.h"
#include "platform/base/json_object.h"
#include "platform/base/paths.h"
#include "platform/base/process_lock.h"

namespace site {
namespace {

constexpr std::chrono::seconds kTurnLimit(5);

std::string SettingsFile() { return platform::DataDirectory() + "/console.json"; }

}  // namespace

Json ReadConsoleSettings() {
  std::string bytes;
  if (!platform::ReadWholeFile(SettingsFile(), bytes)) return Json::object();
  Json settings = platform::ParseJsonObject<Json>(bytes);
  if (!settings.is_object()) return Json::object();
  return settings;
}

std::string WriteConsoleSetting(const std::string& name, const Json& value) {
  platform::FileError error;
  if (!platform::PreparePrivateDirectory(platform::DataDirectory(), error)) return error.text;
  const platform::ProcessLock turn(SettingsFile() + ".lock", kTurnLimit);
  if (turn.Outcome() == platform::LockOutcome::kTimeout)
    return "another console is writing " + SettingsFile();
  if (turn.Outcome() != platform::LockOutcome::kHeld) return turn.Error().text;
  Json settings = ReadConsoleSettings();
  settings[name] = value;
  const auto outcome = platform::ReplaceFile(SettingsFile(), settings.dump(2) + "\n", 0600, &error);
  return outcome == platform::WriteOutcome::kFailed ? error.text : "";
}

}  // namespace site
