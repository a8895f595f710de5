// SPDX-License-Identifier: MIT
#include "console/alertctl/site.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "companions/alertstore/console_users.h"
#include "companions/dbconfig/document.h"
#include "companions/dbconfig/service_types.h"
#include "companions/dbconfig/site.h"
#include "companions/dbconfig/strings.h"
#include "platform/base/host_name.h"
#include "platform/base/utf8.h"

namespace alertctl {
namespace {

constexpr char kMask[] = "********";

bool Matches(const Json& object, const std::string& name) {
  const auto id = platform::GUID::Parse(name);
  if (id) return IdOf(object) == *id;
  return platform::EqualIgnoringCase(object["name"].get<std::string>(), name);
}

const dbconfig::ServiceType* TypeOf(const Json& service) {
  for (const auto& type : dbconfig::ServiceTypes())
    if (service["type"] == type.key) return &type;
  return nullptr;
}

dbconfig::Site ReadSite() {
  dbconfig::Site site;
  const alertstore::Status status = dbconfig::ReadSite(site);
  if (status != alertstore::kOk) throw StoreFailure("read the stores", status);
  return site;
}

}  // namespace

const Json& FindOne(const Json& objects, const std::string& name, const std::string& kind,
                    const std::string& list_verb) {
  const Json* found = nullptr;
  for (const Json& object : objects) {
    if (!Matches(object, name)) continue;
    if (found != nullptr)
      throw Failure(kInvalid, "more than one " + kind + " is named \"" + name +
                                  "\": name it by its identity (\"" + list_verb + "\" shows them)");
    found = &object;
  }
  if (found == nullptr)
    throw Failure(kNothingMatched, "no " + kind + " is named \"" + name + "\": see \"" + list_verb + "\"");
  return *found;
}

Json LoadSite() {
  Json document = Json::parse(dbconfig::WriteDocument(ReadSite()));
  MaskSecrets(document);
  return document;
}

void MaskSecrets(Json& document) {
  if (!document.is_structured()) return;
  for (auto& [name, value] : document.items()) {
    if ((name == "password" || name == "community") && value != "")
      value = kMask;
    else
      MaskSecrets(value);
  }
}

const Json& FindService(const Json& site, const std::string& name) {
  return FindOne(site["services"], name, "service", "alertctl service list");
}

const Json& FindManager(const Json& site, const std::string& name) {
  const Json& managers = site["alertManagers"];
  if (!name.empty()) return FindOne(managers, name, "alert manager", "alertctl manager list");
  const auto is_this_machine = [](const Json& manager) { return Matches(manager, platform::HostName()); };
  if (std::any_of(managers.begin(), managers.end(), is_this_machine))
    return FindOne(managers, platform::HostName(), "alert manager", "alertctl manager list");
  if (managers.size() == 1) return managers[0];
  throw Failure(
      kInvalid,
      "this machine (" + platform::HostName() +
          ") is no alert manager: choose one with --manager (\"alertctl manager list\" shows them)");
}

bool IsEnabledOn(const Json& manager, const Json& service) {
  const auto is_for_service = [&](const Json& entry) {
    return entry["serviceId"] == service["id"] && entry["backup"] == false;
  };
  const Json& entries = manager["services"];
  return std::any_of(entries.begin(), entries.end(), is_for_service);
}

bool LacksOwnRecord(const platform::GUID& service) {
  const dbconfig::Site site = ReadSite();
  for (const auto& common : site.services) {
    if (common.serviceId != service) continue;
    const dbconfig::ServiceType* type = dbconfig::FindServiceType(common.recordType);
    if (type == nullptr || type->read_specific == nullptr) return false;
    const dbconfig::Records& records = site.specific.at(type->record_type);
    const auto is_own = [&](const dbconfig::RecordBytes& record) {
      return std::memcmp(record.data(), &common.specificRecordId, sizeof common.specificRecordId) == 0;
    };
    return std::none_of(records.begin(), records.end(), is_own);
  }
  return false;
}

std::vector<std::string> ManagersOf(const Json& site, const Json& service) {
  std::vector<std::string> names;
  for (const Json& manager : site["alertManagers"])
    for (const Json& entry : manager["services"])
      if (entry["serviceId"] == service["id"])
        names.push_back(manager["name"].get<std::string>() + (entry["backup"] == true ? " (backup)" : ""));
  return names;
}

FoundUser FindUser(const std::string& name) {
  std::vector<alertstore::ConsoleUser> users;
  const alertstore::Status status = alertstore::ListConsoleUsers(users);
  if (status != alertstore::kOk) throw StoreFailure("read the users", status);
  Json objects = Json::array();
  for (const auto& user : users) objects.push_back({{"id", user.id.ToString()}, {"name", user.name}});
  const Json& found = FindOne(objects, name, "user", "alertctl user list");
  return {IdOf(found), found["name"]};
}

platform::GUID IdOf(const Json& object) {
  const auto id = platform::GUID::Parse(object["id"].get<std::string>());
  return id.value_or(platform::kNullGuid);
}

std::string TypeName(const Json& service) { return dbconfig::ServiceTypeName(RecordTypeOf(service)); }

std::uint32_t RecordTypeOf(const Json& service) {
  const dbconfig::ServiceType* type = TypeOf(service);
  return type != nullptr ? type->record_type : 0;
}

}  // namespace alertctl
