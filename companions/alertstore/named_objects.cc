// SPDX-License-Identifier: MIT
#include "companions/alertstore/named_objects.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "companions/alertstore/guarded.h"
#include "companions/alertstore/record_fields.h"
#include "companions/alertstore/store.h"
#include "platform/base/utf8.h"

namespace alertstore {
namespace {

struct NamedObjectRecord {
  platform::GUID guid;
  platform::FixedText<kMaxObjectName + 1> name;
};

static_assert(IsRecord<NamedObjectRecord, 81>);

constexpr std::uint32_t kObjectByIdentity = 1;

using NamedObjectStore = RecordStore<NamedObjectRecord>;

// Runs an operation on the open store.
template <class Operation>
Status WithStore(const StoreSchema& schema, Operation operation) {
  return Guarded([&] {
    NamedObjectStore store(schema);
    const Status status = store.DBOpen();
    return status == kOk ? operation(store) : status;
  });
}

bool IsName(std::string_view name) {
  return !name.empty() && name.size() <= kMaxObjectName && name.find('\0') == name.npos;
}

}  // namespace

StoreSchema NamedObjectSchema(std::string file) {
  return {std::move(file),
          sizeof(NamedObjectRecord),
          {{kObjectByIdentity, KeyKind::kIdentity, 0, sizeof(platform::GUID)}}};
}

Status NameOfObject(const StoreSchema& schema, const platform::GUID& id, std::uint32_t size, char* buffer) {
  if (buffer == nullptr || size == 0) return kInvalidArgument;
  return WithStore(schema, [&](NamedObjectStore& store) {
    NamedObjectRecord record{id, {}};
    if (const Status status = store.DBAlertRecRetrieve(id, record); status != kOk) return status;
    const std::string_view name = record.name.View();
    const std::size_t length = platform::Utf8Prefix(name, size - 1);
    std::memcpy(buffer, name.data(), length);
    buffer[length] = '\0';
    return kOk;
  });
}

Status AddNamedObject(const StoreSchema& schema, const platform::GUID& id, std::string_view name) {
  if (!IsName(name)) return kInvalidArgument;
  return WithStore(schema, [&](NamedObjectStore& store) {
    NamedObjectRecord record{id, {}};
    record.name.Assign(name);
    return store.AddWithIdentity(record);
  });
}

Status RenameNamedObject(const StoreSchema& schema, const platform::GUID& id, std::string_view name) {
  if (!IsName(name)) return kInvalidArgument;
  return WithStore(schema, [&](NamedObjectStore& store) {
    NamedObjectRecord record{id, {}};
    record.name.Assign(name);
    return store.DBAlertRecUpdate(record);
  });
}

Status RemoveNamedObject(const StoreSchema& schema, const platform::GUID& id) {
  return WithStore(schema, [&](NamedObjectStore& store) { return store.DBAlertRecDelete(id); });
}

Status ListNamedObjects(const StoreSchema& schema, std::vector<NamedObject>& objects) {
  return WithStore(schema, [&](NamedObjectStore& store) {
    std::vector<NamedObject> listed;
    NamedObjectRecord record{};
    Status status = store.DBAlertRecFindFirst(kObjectByIdentity, 0, nullptr, record);
    for (; status == kOk; status = store.DBAlertRecFindNext(record))
      listed.push_back({record.guid, std::string(record.name.View())});
    if (status != kNotFound && status != kEndOfScan) return status;
    objects = std::move(listed);
    return kOk;
  });
}

}  // namespace alertstore
