// SPDX-License-Identifier: MIT
#include "console/alertctl/site.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "companions/alertstore/computers.h"
#include "companions/alertstore/console_users.h"
#include "companions/alertstore/engine.h"
#include "companions/alertstore/stores.h"
#include "companions/dbconfig/document_json.h"
#include "companions/dbconfig/service_types.h"
#include "companions/dbconfig/site.h"
#include "companions/dbconfig/store_reader.h"
#include "companions/dbconfig/strings.h"
#include "console/site/console_settings.h"
#include "console/site/walk.h"
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

template <class Store, class Out>
void ReadStore(Out& out) {
  Store store;
  const alertstore::Status status = site::WalkAll(store, [&](const auto& record) {
    out.push_back(record);
    return alertstore::kOk;
  });
  if (status != alertstore::kOk) throw StoreFailure("read the stores", status);
}

using Objects = std::vector<alertstore::NamedObject>;

Json Named(const std::string& what, alertstore::Status (*list)(Objects&)) {
  Objects objects;
  if (const alertstore::Status status = list(objects); status != alertstore::kOk)
    throw StoreFailure(what, status);
  Json result = Json::array();
  for (const auto& object : objects) result.push_back({{"id", object.id.ToString()}, {"name", object.name}});
  return result;
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
  Json document = dbconfig::MakeDocument(ReadSite());
  MaskSecrets(document);
  return document;
}

Json LoadDelivery() {
  const auto engine = alertstore::CurrentEngine();
  const alertstore::ReadScope one_moment(*engine);
  if (one_moment.Result() != alertstore::kOk) throw StoreFailure("read the stores", one_moment.Result());
  dbconfig::Site only;
  ReadStore<alertstore::CAlertNtfyServDB>(only.services);
  ReadStore<alertstore::CAlert_SRV_CFGDB>(only.managers);
  ReadStore<alertstore::CAlertSERV_INST_NTFY_SERVDB>(only.enabled_services);
  return dbconfig::MakeDocument(only);
}

Json LoadModemTypes() {
  alertstore::CAlertSERV_MODEMDB store("QModemDB.dat");
  dbconfig::Site only;
  const alertstore::Status status = site::WalkAll(store, [&](const alertstore::ALRTSERV_MODEM& type) {
    only.modems.emplace_back(reinterpret_cast<const char*>(&type), sizeof type);
    return alertstore::kOk;
  });
  if (status != alertstore::kOk) throw StoreFailure("read the modem types", status);
  return dbconfig::MakeDocument(only)["modems"];
}

Json LoadComputers() { return Named("read the computers", alertstore::ListComputers); }

Json LoadWholeSite() {
  Json document = dbconfig::MakeDocument(ReadSite());
  document["modemTypes"] = LoadModemTypes();
  document["users"] = Named("read the users", alertstore::ListConsoleUsers);
  document["computers"] = LoadComputers();
  document["consoleSettings"] = site::ReadConsoleSettings();
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

const Json& FindManager(const Json& site, const std::string& name, const std::string& option) {
  const Json& managers = site["alertManagers"];
  if (!name.empty()) return FindOne(managers, name, "alert manager", "alertctl manager list");
  const auto is_this_machine = [](const Json& manager) { return Matches(manager, platform::HostName()); };
  if (std::any_of(managers.begin(), managers.end(), is_this_machine))
    return FindOne(managers, platform::HostName(), "alert manager", "alertctl manager list");
  if (managers.size() == 1) return managers[0];
  throw Failure(kInvalid, "this machine (" + platform::HostName() +
                              ") is no alert manager: choose one with " + option +
                              " (\"alertctl manager list\" shows them)");
}

bool IsEnabledOn(const Json& manager, const Json& service) {
  const auto is_for_service = [&](const Json& entry) {
    return entry["serviceId"] == service["id"] && entry["backup"] == false;
  };
  const Json& entries = manager["services"];
  return std::any_of(entries.begin(), entries.end(), is_for_service);
}

bool LacksOwnRecord(const platform::GUID& service) {
  std::vector<alertstore::ALRTNTFYSERV> services;
  ReadStore<alertstore::CAlertNtfyServDB>(services);
  const auto common = std::find_if(services.begin(), services.end(),
                                   [&](const auto& each) { return each.serviceId == service; });
  if (common == services.end()) return false;
  const dbconfig::ServiceType* type = dbconfig::FindServiceType(common->recordType);
  if (type == nullptr || type->read_specific == nullptr) return false;
  dbconfig::Records records;
  const auto reader = type->read_specific(records);
  alertstore::Status status = reader->Open();
  if (status == alertstore::kOk) status = reader->ReadAll();
  if (status != alertstore::kOk) throw StoreFailure("read the stores", status);
  return std::none_of(records.begin(), records.end(), [&](const dbconfig::RecordBytes& record) {
    return std::memcmp(record.data(), &common->specificRecordId, sizeof common->specificRecordId) == 0;
  });
}

Deliveries::Deliveries(const Json& site) {
  for (const Json& manager : site["alertManagers"])
    for (const Json& entry : manager["services"])
      managers_[entry["serviceId"]].push_back(manager["name"].get<std::string>() +
                                              (entry["backup"] == true ? " (backup)" : ""));
}

std::vector<std::string> Deliveries::Of(const Json& service) const {
  const auto found = managers_.find(service["id"].get<std::string>());
  return found == managers_.end() ? std::vector<std::string>() : found->second;
}

std::vector<std::string> ManagersOf(const Json& site, const Json& service) {
  return Deliveries(site).Of(service);
}

const Json& FindResponse(const Json& site, const std::string& name) {
  const auto id = platform::GUID::Parse(name);
  if (!id) throw Failure(kInvalid, "\"" + name + "\" is no identity: see \"alertctl response list\"");
  for (const Json& response : site["responses"])
    if (IdOf(response) == *id) return response;
  throw Failure(kNothingMatched,
                "no response has the identity " + id->ToString() + ": see \"alertctl response list\"");
}

FoundUser FindUser(const std::string& name) {
  const Json objects = Named("read the users", alertstore::ListConsoleUsers);
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
