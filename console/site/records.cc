// SPDX-License-Identifier: MIT
#include "console/site/records.h"

#include <cstring>

#include "companions/dbconfig/keywords.h"

namespace site {
namespace {

using dbconfig::Field;
using dbconfig::FieldKind;

void SetText(char* record, const Field& field, const std::string& text) {
  if (text.size() >= field.width)
    throw Failure(kInvalid, std::string(field.name) + " \"" + text + "\" is too long: it holds " +
                                std::to_string(field.width - 1) + " bytes");
  std::memset(record + field.offset, 0, field.width);
  std::memcpy(record + field.offset, text.data(), text.size());
}

template <class T>
void SetNumber(char* record, const Field& field, T value) {
  const platform::LittleUint<T> stored = value;
  std::memcpy(record + field.offset, &stored, sizeof stored);
}

void SetField(char* record, const Field& field, const Json& value) {
  if (field.kind == FieldKind::kText)
    SetText(record, field, value.get<std::string>());
  else if (field.width == sizeof(std::uint16_t))
    SetNumber(record, field, value.get<std::uint16_t>());
  else if (field.kind == FieldKind::kFlag)
    SetNumber(record, field, std::uint32_t{value.get<bool>()});
  else
    SetNumber(record, field, value.get<std::uint32_t>());
}

const Field* FindField(dbconfig::Fields fields, const std::string& name) {
  for (const Field& field : fields)
    if (name == field.name && field.kind != FieldKind::kId) return &field;
  return nullptr;
}

void SetKeywords(char* record, const Field& slots, const alertrecords::KeywordIds& keywords) {
  alertstore::KeywordSlot filled[alertrecords::kMaxKeywords];
  dbconfig::Keywords().FillSlots(keywords, filled);
  std::memcpy(record + slots.offset, filled, sizeof filled);
}

void SetMessage(char* record, const Field& text, const Field& slots, const Json& service,
                const char* member) {
  if (text.name == nullptr || !service.contains(member)) return;
  const StoredMessage message = StoreMessage(service[member].get<std::string>());
  SetText(record, text, message.text);
  SetKeywords(record, slots, message.keywords);
}

}  // namespace

StoredMessage StoreMessage(std::string_view shown) {
  StoredMessage message;
  message.text = dbconfig::Keywords().Collapse(shown, message.keywords);
  return message;
}

void SetFields(char* record, dbconfig::Fields fields, const Json& values) {
  for (const auto& [name, value] : values.items()) {
    const Field* field = FindField(fields, name);
    if (field == nullptr) throw Failure(kInvalid, "there is no setting \"" + name + "\"");
    SetField(record, *field, value);
  }
}

void SetSpecificFields(char* record, const dbconfig::ServiceType& type, const Json& service) {
  SetFields(record, type.settings, service.value("settings", Json::object()));
  SetFields(record, type.modem, service.value("modem", Json::object()));
  SetMessage(record, type.message.body, type.message.body_keywords, service, "body");
  SetMessage(record, type.message.subject, type.message.subject_keywords, service, "subject");
  if (type.message.priority.name && service.contains("priority"))
    SetField(record, type.message.priority, service["priority"]);
}

}  // namespace site
