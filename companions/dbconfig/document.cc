// SPDX-License-Identifier: MIT
#include "companions/dbconfig/document.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <nlohmann/json.hpp>
#include <string_view>
#include <vector>

#include "companions/dbconfig/document_json.h"
#include "companions/dbconfig/keywords.h"
#include "companions/dbconfig/service_types.h"
#include "companions/dbconfig/site_fields.h"

namespace dbconfig {
namespace {

using alertstore::ALERTRESPREC;
using alertstore::ALRTNTFYSERV;
using alertstore::ALRTUSRINSTSERV;
using alertstore::KeywordSlot;
using Json = nlohmann::ordered_json;
using platform::GUID;

/// Records by their identity, which is in their first 16 bytes.
using RecordsById = std::map<GUID, const RecordBytes*>;

template <class T>
T ReadAs(std::string_view record, std::size_t offset) {
  T value;
  std::memcpy(&value, record.data() + offset, sizeof value);
  return value;
}

std::string ReadText(std::string_view record, const Field& field) {
  const std::string_view text = record.substr(field.offset, field.width);
  return std::string(text.substr(0, text.find('\0')));
}

std::uint32_t ReadNumber(std::string_view record, const Field& field) {
  if (field.width == sizeof(platform::LittleU16)) return ReadAs<platform::LittleU16>(record, field.offset);
  return ReadAs<platform::LittleU32>(record, field.offset);
}

Json IdOrNull(const GUID& id) { return id.IsNull() ? Json() : Json(id.ToString()); }

Json Value(std::string_view record, const Field& field) {
  switch (field.kind) {
    case FieldKind::kText:
      return ReadText(record, field);
    case FieldKind::kNumber:
      return ReadNumber(record, field);
    case FieldKind::kFlag:
      return ReadNumber(record, field) != 0;
    case FieldKind::kId:
      return IdOrNull(ReadAs<GUID>(record, field.offset));
  }
  return {};
}

/// An object with room for its members: one that grows copies all that it holds, to any depth.
Json RoomFor(std::size_t members) {
  Json object = Json::object();
  object.get_ref<Json::object_t&>().reserve(members);
  return object;
}

Json Object(std::string_view record, Fields fields) {
  Json object = RoomFor(fields.size());
  for (const Field& field : fields) object[field.name] = Value(record, field);
  return object;
}

Json Objects(const Records& records, Fields fields) {
  Json objects = Json::array();
  for (const RecordBytes& record : records) objects.push_back(Object(record, fields));
  return objects;
}

RecordsById ById(const Records& records) {
  RecordsById by_id;
  for (const RecordBytes& record : records) by_id[ReadAs<GUID>(record, 0)] = &record;
  return by_id;
}

/// What stands behind one placeholder. An identifier that has no name here is written all the same, so that
/// the placeholders stay in step with the list.
Json KeywordObject(std::uint32_t id) {
  const alertrecords::Keyword* keyword = Keywords().Find(id);
  return {{"id", id},
          {"name", keyword != nullptr ? keyword->name : ""},
          {"format", keyword != nullptr ? keyword->format : ""}};
}

Json Message(std::string text, const std::vector<std::uint32_t>& ids) {
  Json keywords = Json::array();
  for (std::uint32_t id : ids) keywords.push_back(KeywordObject(id));
  Json message = RoomFor(2);
  message["text"] = std::move(text);
  message["keywords"] = std::move(keywords);
  return message;
}

/// The first identifier of 0 ends the list: no placeholder behind it is ever filled in.
std::vector<std::uint32_t> SlotIds(std::string_view record, const Field& slots) {
  std::vector<std::uint32_t> ids;
  for (std::size_t at = slots.offset; at < slots.offset + slots.width; at += sizeof(KeywordSlot)) {
    const std::uint32_t id = ReadAs<KeywordSlot>(record, at).id;
    if (id == 0) break;
    ids.push_back(id);
  }
  return ids;
}

template <std::size_t N>
std::vector<std::uint32_t> ByteIds(const std::uint8_t (&bytes)[N]) {
  return {bytes, std::find(bytes, bytes + N, 0)};
}

Json DefaultMessage(std::string_view record, const MessageFields& fields) {
  Json message = RoomFor(3);
  if (fields.subject.name)
    message["subject"] = Message(ReadText(record, fields.subject), SlotIds(record, fields.subject_keywords));
  message["body"] = Message(ReadText(record, fields.body), SlotIds(record, fields.body_keywords));
  if (fields.priority.name) message["priority"] = ReadNumber(record, fields.priority);
  return message;
}

/// Writes the services. Looks records up by identity, so that a large site takes time in proportion to its
/// size.
class ServiceWriter {
 public:
  explicit ServiceWriter(const Site& site) : site_(site) {
    for (const auto& [type, records] : site.specific) specific_[type] = ById(records);
    for (const auto& [type, records] : site.users) users_[type] = ById(records);
    for (const ALRTUSRINSTSERV& link : site.links) links_[link.serviceId].push_back(&link);
  }

  Json Write() const {
    Json services = Json::array();
    for (const ALRTNTFYSERV& service : site_.services)
      if (const ServiceType* type = FindServiceType(service.recordType))
        services.push_back(Service(service, *type));
    return services;
  }

 private:
  Json Service(const ALRTNTFYSERV& service, const ServiceType& type) const {
    Json object = RoomFor(9);
    object["id"] = service.serviceId.ToString();
    object["name"] = service.name.View();
    object["type"] = type.key;
    object["enabled"] = service.enabled != 0;
    AddSpecific(object, service, type);
    if (type.read_users) object["users"] = Users(service.serviceId, type);
    return object;
  }

  /// Adds nothing where the record is missing: the service cannot be used then.
  void AddSpecific(Json& object, const ALRTNTFYSERV& service, const ServiceType& type) const {
    const RecordBytes* record = Find(specific_, type.record_type, service.specificRecordId);
    if (record == nullptr) return;
    if (!type.settings.empty()) object["settings"] = Object(*record, type.settings);
    if (type.message.body.name) object["defaultMessage"] = DefaultMessage(*record, type.message);
    if (type.modem.empty()) return;
    object["modem"] = Object(*record, type.modem);
    const RecordBytes* backup = Find(specific_, type.record_type, service.backupSpecificRecordId);
    object["backupModem"] = backup ? Object(*backup, type.modem) : Json();
  }

  Json Users(const GUID& service, const ServiceType& type) const {
    Json users = Json::array();
    const auto links = links_.find(service);
    if (links == links_.end()) return users;
    for (const ALRTUSRINSTSERV* link : links->second)
      if (const RecordBytes* record = Find(users_, type.record_type, link->userRecordId))
        users.push_back(Object(*record, type.user));
    return users;
  }

  using ByType = std::map<std::uint32_t, RecordsById>;
  static const RecordBytes* Find(const ByType& by_type, std::uint32_t type, const GUID& id) {
    const auto records = by_type.find(type);
    if (records == by_type.end()) return nullptr;
    const auto record = records->second.find(id);
    return record == records->second.end() ? nullptr : record->second;
  }

  const Site& site_;
  ByType specific_;
  ByType users_;
  std::map<GUID, std::vector<const ALRTUSRINSTSERV*>> links_;
};

Json Managers(const Site& site) {
  std::map<GUID, Json> enabled;
  for (const auto& entry : site.enabled_services)
    enabled[entry.managerGuid].push_back(
        {{"serviceId", entry.serviceGuid.ToString()}, {"backup", entry.isBackup != 0}});
  Json managers = Json::array();
  for (const auto& manager : site.managers) {
    Json services = enabled[manager.guid];
    if (services.is_null()) services = Json::array();
    managers.push_back({{"id", manager.guid.ToString()},
                        {"name", manager.managerName.View()},
                        {"services", std::move(services)}});
  }
  return managers;
}

Json Response(const ALERTRESPREC& response) {
  const ServiceType* type = FindServiceType(response.serviceRecordType);
  return {{"id", response.responseId.ToString()},
          {"responseType", std::uint16_t{response.responseType}},
          {"serviceId", IdOrNull(response.serviceId)},
          {"serviceName", response.serviceName.View()},
          {"serviceType", type ? Json(type->key) : Json()},
          {"userId", IdOrNull(response.userId)},
          {"userName", response.userName.View()},
          {"priority", std::uint16_t{response.priority}},
          {"subject", Message(std::string(response.subject.View()), ByteIds(response.subjectKeywords))},
          {"message", Message(std::string(response.message.View()), ByteIds(response.messageKeywords))}};
}

Json Responses(const Site& site) {
  Json responses = Json::array();
  for (const ALERTRESPREC& response : site.responses) responses.push_back(Response(response));
  return responses;
}

}  // namespace

Json MakeDocument(const Site& site) {
  Json document = RoomFor(9);
  document["format"] = "alerting-configuration";
  document["version"] = 1;
  document["alertManagers"] = Managers(site);
  document["services"] = ServiceWriter(site).Write();
  document["responses"] = Responses(site);
  document["snmpManagers"] = Objects(site.snmp_managers, kSnmpManagerFields);
  document["modems"] = Objects(site.modems, kModemFields);
  document["locations"] = Objects(site.locations, kLocationFields);
  document["pagingProviders"] = Objects(site.providers, kProviderFields);
  return document;
}

std::string WriteDocument(const Site& site) {
  return MakeDocument(site).dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace dbconfig
