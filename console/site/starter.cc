// SPDX-License-Identifier: MIT
#include "console/site/starter.h"

#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "companions/alertrecords/test_response.h"
#include "companions/alertstore/computers.h"
#include "companions/alertstore/stores.h"
#include "companions/ctxhelp/resource_directory.h"
#include "companions/dbconfig/service_types.h"
#include "companions/dbconfig/site_fields.h"
#include "console/site/records.h"
#include "platform/base/host_name.h"
#include "platform/base/paths.h"

namespace site {
namespace {

using namespace alertstore;  // NOLINT: every kind of record is made here
using platform::GUID;

/// A directory that was named and is not there must not give way to another one in silence.
void CheckNamedResources() {
  const char* named = std::getenv("ALERTING_RESOURCES");
  std::error_code ignored;
  if (named != nullptr && *named != '\0' && !std::filesystem::is_directory(named, ignored))
    throw Failure(kInvalid, std::string("ALERTING_RESOURCES names ") + named +
                                ", which is no directory: correct it, or unset it to use the installed "
                                "resource files");
}

Json ReadStarterFile(const std::string& name) {
  const std::string path = ctxhelp::ResourceDirectory() + "/starter/" + name;
  std::string bytes;
  if (!platform::ReadWholeFile(path, bytes))
    throw Failure(kInvalid, "cannot read " + path +
                                ": install the console's resource files, or name their directory in "
                                "ALERTING_RESOURCES");
  Json list = Json::parse(bytes, nullptr, false);
  if (!list.is_array()) throw Failure(kInvalid, path + " is damaged: install it again");
  return list;
}

GUID IdIn(const Json& starter, const char* member) {
  const auto id = GUID::Parse(starter[member].get<std::string>());
  if (!id)
    throw Failure(kInvalid,
                  "the starter data are damaged, install them again: no identity in " + starter.dump());
  return *id;
}

/// True when the record was added, false when its identity or unique name was there already.
bool AddedNow(Status status, const std::string& what) {
  if (status == kNotUnique) return false;
  if (status != kOk) throw StoreFailure("add " + what, status);
  return true;
}

/// Whether a search found its record. A read that failed must not pass for "none", or there would be two.
bool IsThere(Status status) {
  if (status != kOk && status != kNotFound) throw StoreFailure("read the stores", status);
  return status == kOk;
}

template <class Store>
void Open(Store& store) {
  const Status status = store.DBOpen();
  if (status != kOk) throw StoreFailure("open the stores", status);
}

/// Adds the records of a starter file to a store whose names are unique. Answers how many were added.
template <class Store>
std::size_t AddNamed(Store& store, const Json& list, dbconfig::Fields fields) {
  Open(store);
  std::size_t added = 0;
  for (const Json& values : list) {
    typename Store::RecordType record{};
    SetFields(reinterpret_cast<char*>(&record), fields, values);
    GUID id{};
    if (AddedNow(store.DBAlertRecAdd(record, id), "\"" + std::string(record.name.View()) + "\"")) ++added;
  }
  return added;
}

/// Companies have no unique names, so that these examples are told apart by the identities that they bring.
std::size_t AddProviders(const Json& list) {
  CAlertAPAGE_SERVICE_PROVIDERDB store;
  Open(store);
  std::size_t added = 0;
  for (const Json& starter : list) {
    ALRTAPAGE_SERVICE_PROVIDER_REC record{};
    record.guid = IdIn(starter, "id");
    SetFields(reinterpret_cast<char*>(&record), dbconfig::kProviderFields, starter["settings"]);
    if (AddedNow(store.AddWithIdentity(record), "\"" + std::string(record.company.View()) + "\"")) ++added;
  }
  return added;
}

template <class Specific>
Status AddSpecific(CAlertNtfyServDB& services, const dbconfig::ServiceType& type, const Json& service) {
  Specific record{};
  record.guid = IdIn(service, "recordId");
  SetSpecificFields(reinterpret_cast<char*>(&record), type, service);
  return services.SpecificStore<Specific>()->AddWithIdentity(record);
}

using AddSpecificFunction = Status (*)(CAlertNtfyServDB&, const dbconfig::ServiceType&, const Json&);

/// By record type; null for the program launch, which has no record of its own.
AddSpecificFunction AddSpecificOf(std::uint32_t record_type) {
  static const std::map<std::uint32_t, AddSpecificFunction> functions = {
      {1, AddSpecific<ALRTMHSSERVICEREC>},    {2, AddSpecific<ALRTSNMPSERVICEREC>},
      {3, AddSpecific<ALRTMCISERVICEREC>},    {4, AddSpecific<ALRTCOMPUSSERVICEREC>},
      {5, AddSpecific<ALRTSMTPSERVICEREC>},   {6, AddSpecific<ALRTMAPISERVICEREC>},
      {7, AddSpecific<ALRTCCMAILSERVICEREC>}, {8, AddSpecific<ALRTWAVESERVICEREC>},
      {9, AddSpecific<ALRTTTSSERVICEREC>},    {11, AddSpecific<ALRTAPAGESERVICEREC>},
      {12, AddSpecific<ALRTNPAGESERVICEREC>}, {13, AddSpecific<ALRTGENPORTSERVICEREC>}};
  const auto function = functions.find(record_type);
  return function != functions.end() ? function->second : nullptr;
}

void SetMessage(const Json& service, const char* member, auto& text, std::uint8_t (&ids)[kKeywordSlots]) {
  const StoredMessage message = StoreMessage(service.value(member, ""));
  text.Assign(message.text);
  alertrecords::FillResponseKeywords(message.keywords, ids);
}

class Starter {
 public:
  Added Run();

 private:
  void OpenStores();
  void LoadServices();
  void AddManager();
  void AddThisComputer();
  void AddService(const Json& service, const dbconfig::ServiceType& type);
  void EnableHere(const ALRTNTFYSERV& common);
  void AddTestResponse(const Json& service, const ALRTNTFYSERV& common);

  CAlertNtfyServDB services_;
  CAlertRespDB responses_;
  CAlert_SRV_CFGDB managers_;
  CAlertSERV_INST_NTFY_SERVDB enabled_;
  GUID manager_{};
  std::map<std::uint32_t, ALRTNTFYSERV> first_of_type_;
  Added added_;
};

void Starter::OpenStores() {
  Open(services_);
  Open(responses_);
  Open(managers_);
  Open(enabled_);
}

void Starter::LoadServices() {
  ALRTNTFYSERV service{};
  Status status = services_.DBAlertRecFindFirst(kByIdentity, 0, nullptr, service);
  for (; status == kOk; status = services_.DBAlertRecFindNext(service))
    first_of_type_.emplace(std::uint32_t{service.recordType}, service);
  if (status != kNotFound && status != kEndOfScan) throw StoreFailure("read the services", status);
}

void Starter::AddManager() {
  ALRT_SRV_CFGREC manager{};
  manager.managerName.Assign(platform::HostName());
  ALRT_SRV_CFGREC found{};
  if (IsThere(managers_.DBAlertRecFindFirst(kManagerByName, manager.managerName.kWidth,
                                            manager.managerName.Data(), found))) {
    manager_ = found.guid;
    return;
  }
  if (AddedNow(managers_.DBAlertRecAdd(manager, manager_), "this machine as alert manager"))
    ++added_.managers;
}

/// For those who browse for a computer; the list begins with this one. Sites that were set up before there was such a list
/// have none.
void Starter::AddThisComputer() {
  std::vector<Computer> known;
  if (const Status status = ListComputers(known); status != kOk)
    throw StoreFailure("read the computers", status);
  if (!known.empty()) return;
  if (AddedNow(AddComputer(GUID::Generate(), platform::HostName()), "this machine as a computer"))
    ++added_.computers;
}

void Starter::EnableHere(const ALRTNTFYSERV& common) {
  ALRTSERV_INST_NTFY_SERVREC entry{};
  if (IsThere(enabled_.DBAlertRecFindFirst(kEnabledServiceByService, sizeof(GUID), &common.serviceId, entry)))
    return;
  entry = {};
  entry.serviceGuid = common.serviceId;
  entry.managerGuid = manager_;
  entry.serviceName = common.name;
  GUID id{};
  AddedNow(enabled_.DBAlertRecAdd(entry, id), "an enabled service");
}

void Starter::AddTestResponse(const Json& service, const ALRTNTFYSERV& common) {
  ALERTRESPREC response{};
  response.responseId = alertrecords::TestResponseId(common.recordType);
  response.responseType = service["responseType"].get<std::uint16_t>();
  response.priority = service.value("priority", std::uint16_t{0});
  response.serviceId = common.serviceId;
  response.serviceName.Assign(common.name.View());
  response.serviceRecordType = common.recordType;
  SetMessage(service, "body", response.message, response.messageKeywords);
  SetMessage(service, "subject", response.subject, response.subjectKeywords);
  if (AddedNow(responses_.AddWithIdentity(response), "a test response")) ++added_.test_responses;
}

/// The service itself comes last: as long as it is missing, the rest is not complete.
void Starter::AddService(const Json& service, const dbconfig::ServiceType& type) {
  ALRTNTFYSERV common{};
  common.serviceId = IdIn(service, "id");
  common.name.Assign(service["name"].get<std::string>());
  common.enabled = 1;
  common.recordType = type.record_type;
  EnableHere(common);
  if (const AddSpecificFunction add = AddSpecificOf(type.record_type)) {
    common.specificRecordId = IdIn(service, "recordId");
    AddedNow(add(services_, type, service), "the settings of \"" + std::string(common.name.View()) + "\"");
  }
  AddTestResponse(service, common);
  if (AddedNow(services_.AddWithIdentity(common), "the service \"" + std::string(common.name.View()) + "\""))
    ++added_.services;
}

Added Starter::Run() {
  const Json starters = ReadStarterFile("services.json");
  OpenStores();
  LoadServices();
  AddThisComputer();
  if (first_of_type_.size() < dbconfig::ServiceTypes().size()) {
    AddManager();
    CAlertMODEM_LOCATIONDB locations;
    added_.locations = AddNamed(locations, ReadStarterFile("locations.json"), dbconfig::kLocationFields);
    CAlertSERV_MODEMDB modem_types(kModemTypeFile);
    added_.modem_types = AddNamed(modem_types, ReadStarterFile("modem-types.json"), dbconfig::kModemFields);
    added_.paging_providers = AddProviders(ReadStarterFile("providers.json"));
  }
  for (const dbconfig::ServiceType& type : dbconfig::ServiceTypes()) {
    const auto is_type = [&](const Json& starter) { return starter["type"] == type.key; };
    const auto starter = std::find_if(starters.begin(), starters.end(), is_type);
    if (starter == starters.end()) continue;
    const auto present = first_of_type_.find(type.record_type);
    if (present == first_of_type_.end())
      AddService(*starter, type);
    else
      AddTestResponse(*starter, present->second);
  }
  return added_;
}

}  // namespace

Added AddStarterData() {
  CheckNamedResources();
  try {
    return Starter().Run();
  } catch (const Json::exception& error) {
    throw Failure(kInvalid, std::string("the starter data are damaged, install them again: ") + error.what());
  }
}

}  // namespace site
