// SPDX-License-Identifier: MIT
#include "console/site/laboratory_settings.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "console/site/failure.h"
#include "platform/base/atomic_write.h"
#include "platform/base/json_object.h"
#include "platform/base/paths.h"

namespace site {
namespace {

using Pointer = Json::json_pointer;

constexpr unsigned kPermissions = 0777;

/// All that a laboratory may set; JSON pointers (RFC 6901).
const Pointer kSettings[] = {Pointer("/ports/COM1"), Pointer("/ports/COM2"), Pointer("/ports/COM3"),
                             Pointer("/ports/COM4"), Pointer("/smtpPort"),   Pointer("/trapPort"),
                             Pointer("/mailTls")};

std::string SettingsFile() { return platform::DataDirectory() + "/alertserver.json"; }

/// Nothing where there is no file.
std::optional<std::string> ReadSettingsFile(unsigned& mode) {
  struct stat found {};
  if (stat(SettingsFile().c_str(), &found) != 0 && errno == ENOENT) return std::nullopt;
  platform::FileError error;
  std::string bytes;
  if (!platform::CheckPrivateFile(SettingsFile(), error)) throw Failure(kInvalid, error.text);
  if (!platform::ReadWholeFile(SettingsFile(), bytes))
    throw Failure(kStoreFailure, platform::SystemError("read", SettingsFile()).text);
  mode = found.st_mode & kPermissions;
  return bytes;
}

void Write(const std::string& bytes, unsigned mode) {
  platform::FileError error;
  if (platform::ReplaceFile(SettingsFile(), bytes, mode, &error) == platform::WriteOutcome::kFailed)
    throw Failure(kStoreFailure, error.text);
}

void Remove() {
  if (unlink(SettingsFile().c_str()) != 0 && errno != ENOENT)
    throw Failure(kStoreFailure, platform::SystemError("remove", SettingsFile()).text);
  platform::FlushDirectory(platform::DataDirectory());
}

/// The alert server works by its defaults where the file is no object.
Json ToObject(const std::optional<std::string>& bytes) {
  Json object = platform::ParseJsonObject<Json>(bytes.value_or("{}"));
  if (!object.is_object()) return Json::object();
  return object;
}

/// The value at a place, or null; also where something on the way there is no object.
Json ValueAt(const Json& object, const Pointer& place) {
  return object.contains(place) ? object.at(place) : Json();
}

void Take(Json& object, const Pointer& place) {
  Json& holder = object[place.parent_pointer()];
  holder.erase(place.back());
}

/// Takes the laboratory's values out of settings that somebody edited. Answers whether any other value stood in their place.
bool TakeOut(const Json& before, const Json& during, Json& now) {
  bool edited = false;
  for (const Pointer& place : kSettings) {
    const Json own = ValueAt(before, place), pretended = ValueAt(during, place), found = ValueAt(now, place);
    if (pretended == own) continue;
    if (found != pretended) {
      edited |= found != own;
      continue;
    }
    own.is_null() ? Take(now, place) : void(now[place] = own);
  }
  if (now.contains("ports") && now["ports"].empty() && !before.contains("ports")) now.erase("ports");
  return edited;
}

}  // namespace

ChangedSettings PlanSettings(const Json& places) {
  ChangedSettings settings;
  settings.before = ReadSettingsFile(settings.mode);
  Json during = ToObject(settings.before);
  if (during.contains("ports") && !during["ports"].is_object()) during.erase("ports");
  for (std::size_t i = 0; i < std::size(kLaboratoryPorts); ++i)
    during["ports"]["COM" + std::to_string(i + 1)] = places.at(kLaboratoryPorts[i]).at("path");
  during["smtpPort"] = places.at("mail").at("port");
  during["trapPort"] = places.at("traps").at("port");
  // The laboratory has no certificate, so nothing would arrive there.
  if (ValueAt(during, Pointer("/mailTls")) == "verified") during["mailTls"] = "offered";
  settings.during = during.dump(2) + "\n";
  return settings;
}

void WriteSettings(const ChangedSettings& settings) { Write(settings.during, settings.mode); }

void PutSettingsBack(const ChangedSettings& settings, std::vector<std::string>& left) {
  unsigned mode = settings.mode;
  const auto now = ReadSettingsFile(mode);
  if (now == settings.before) return;
  if (now == settings.during) return settings.before ? Write(*settings.before, settings.mode) : Remove();
  Json edited = platform::ParseJsonObject<Json>(now.value_or(""));
  if (!edited.is_object()) {
    left.emplace_back(now ? "alertserver.json, which somebody changed to what is no settings"
                          : "alertserver.json, which somebody removed");
    return;
  }
  if (TakeOut(ToObject(settings.before), ToObject(settings.during), edited))
    left.emplace_back("values in alertserver.json that somebody changed");
  edited.empty() && !settings.before ? Remove() : Write(edited.dump(2) + "\n", mode);
}

}  // namespace site
