// SPDX-License-Identifier: MIT
#include "console/site/laboratory_file.h"

#include <unistd.h>

#include <cerrno>
#include <nlohmann/json.hpp>

#include "console/site/failure.h"
#include "platform/base/atomic_write.h"
#include "platform/base/base64.h"
#include "platform/base/json_object.h"
#include "platform/base/paths.h"

namespace site {
namespace {

using Json = nlohmann::ordered_json;
using platform::EncodeBase64;

constexpr int kVersion = 1;

std::string FileName() { return platform::DataDirectory() + "/laboratory.json"; }

[[noreturn]] void Damaged() {
  throw Failure(kInvalid,
                FileName() +
                    " is damaged, so the site's own values cannot be put back from it: look at mail "
                    "server, SNMP managers, modems and alertserver.json, then remove the file");
}

std::string Bytes(const Json& object, const char* member) {
  const auto bytes = platform::DecodeBase64(object.at(member).get<std::string>());
  if (!bytes) Damaged();
  return *bytes;
}

Json ToJson(const ChangedRecord& record) {
  Json fields = Json::array();
  for (const ChangedField& field : record.fields)
    fields.push_back({{"name", field.name},
                      {"before", EncodeBase64(field.before)},
                      {"during", EncodeBase64(field.during)}});
  return {{"what", record.what}, {"store", record.store}, {"id", record.id.ToString()}, {"fields", fields}};
}

Json ToJson(const AddedRecord& record) {
  return {{"what", record.what}, {"store", record.store}, {"record", EncodeBase64(record.bytes)}};
}

Json ToJson(const ChangedSettings& settings) {
  return {{"before", settings.before ? Json(EncodeBase64(*settings.before)) : Json()},
          {"mode", settings.mode},
          {"during", EncodeBase64(settings.during)}};
}

ChangedRecord ToChanged(const Json& object) {
  const auto id = platform::GUID::Parse(object.at("id").get<std::string>());
  if (!id || object.at("fields").empty()) Damaged();
  ChangedRecord record{object.at("what"), object.at("store"), *id, {}};
  for (const Json& field : object.at("fields"))
    record.fields.push_back({field.at("name"), Bytes(field, "before"), Bytes(field, "during")});
  return record;
}

ChangedSettings ToSettings(const Json& object) {
  ChangedSettings settings{std::nullopt, object.at("mode"), Bytes(object, "during")};
  if (!object.at("before").is_null()) settings.before = Bytes(object, "before");
  return settings;
}

LaboratoryChanges ToChanges(const Json& file) {
  if (file.at("version") != kVersion) Damaged();
  LaboratoryChanges changes;
  for (const Json& object : file.at("added"))
    changes.added.push_back({object.at("what"), object.at("store"), Bytes(object, "record")});
  for (const Json& object : file.at("changed")) changes.changed.push_back(ToChanged(object));
  changes.settings = ToSettings(file.at("settings"));
  return changes;
}

}  // namespace

bool LaboratoryIsRemembered() { return access(FileName().c_str(), F_OK) == 0; }

void RememberLaboratory(const LaboratoryChanges& changes) {
  Json file = {{"version", kVersion}, {"added", Json::array()}, {"changed", Json::array()}};
  for (const AddedRecord& record : changes.added) file["added"].push_back(ToJson(record));
  for (const ChangedRecord& record : changes.changed) file["changed"].push_back(ToJson(record));
  file["settings"] = ToJson(changes.settings);
  platform::FileError error;
  const auto outcome = platform::ReplaceFile(FileName(), file.dump(1) + "\n", 0600, &error);
  if (outcome == platform::WriteOutcome::kFailed) throw Failure(kStoreFailure, error.text);
}

std::optional<LaboratoryChanges> RememberedLaboratory() {
  std::string bytes;
  if (!LaboratoryIsRemembered()) return std::nullopt;
  platform::FileError error;
  if (!platform::CheckPrivateFile(FileName(), error)) throw Failure(kInvalid, error.text);
  if (!platform::ReadWholeFile(FileName(), bytes))
    throw Failure(kStoreFailure, platform::SystemError("read", FileName()).text);
  try {
    return ToChanges(platform::ParseJsonObject<Json>(bytes));
  } catch (const Json::exception&) {
    Damaged();
  }
}

void ForgetLaboratory() {
  if (unlink(FileName().c_str()) != 0 && errno != ENOENT)
    throw Failure(kStoreFailure, platform::SystemError("remove", FileName()).text);
  platform::FlushDirectory(platform::DataDirectory());
}

}  // namespace site
