// SPDX-License-Identifier: MIT
#include "console/site/laboratory_stores.h"

#include <algorithm>
#include <cstring>

#include "companions/alertstore/store_lock.h"
#include "companions/alertstore/stores.h"
#include "companions/dbconfig/service_types.h"

namespace site {
namespace {

using namespace alertstore;  // NOLINT: records of several kinds
using platform::GUID;

/// Opens and locks a store, reads the record of that identity, and lets `work` go on with both.
template <class Store, class Work>
Status WithRecord(const GUID& id, Work&& work) {
  Store store;
  if (const Status status = store.DBOpen()) return status;
  const StoreLock lock(store);
  if (lock.Result() != kOk) return lock.Result();
  typename Store::RecordType record{};
  SetIdentity(record, id);
  if (const Status status = store.DBAlertRecRetrieve(id, record)) return status;
  return work(store, record);
}

template <class Store>
Status EditRecord(const GUID& id, const LaboratoryStore::Edit& edit) {
  return WithRecord<Store>(id, [&](Store& store, auto& record) {
    return edit(reinterpret_cast<char*>(&record)) ? store.DBAlertRecUpdate(record) : kOk;
  });
}

/// False where the bytes are no record of the store.
template <class Record>
bool ToRecord(const std::string& bytes, Record& record) {
  if (bytes.size() != sizeof record) return false;
  std::memcpy(&record, bytes.data(), sizeof record);
  return true;
}

template <class Store>
Status AddRecord(const std::string& bytes) {
  Store store;
  typename Store::RecordType record;
  if (!ToRecord(bytes, record)) return kInvalidArgument;
  const Status status = store.DBOpen();
  return status == kOk ? store.AddWithIdentity(record) : status;
}

template <class Store>
Status RemoveRecord(const std::string& bytes, bool& removed) {
  typename Store::RecordType added;
  if (!ToRecord(bytes, added)) return kInvalidArgument;
  return WithRecord<Store>(IdentityOf(added), [&](Store& store, const auto& record) {
    removed = std::memcmp(&record, &added, sizeof record) == 0;
    return removed ? store.DBAlertRecDelete(IdentityOf(record)) : kOk;
  });
}

template <class Store>
constexpr LaboratoryStore Named(const char* name) {
  return {name, EditRecord<Store>, AddRecord<Store>, RemoveRecord<Store>};
}

constexpr LaboratoryStore kStores[] = {
    Named<CAlertSMTPNtfyServDB>("internet-mail"),  Named<CAlertAPAGENtfyServDB>("alphanumeric-pager"),
    Named<CAlertNPAGENtfyServDB>("numeric-pager"), Named<CAlertGENPORTNtfyServDB>("generic-port"),
    Named<CAlertUSR_SNMPDB>("snmp-managers"),      Named<CAlertSERV_MODEMDB>("modems"),
};

const dbconfig::Field* FindIn(dbconfig::Fields fields, const std::string& name) {
  const auto found = std::ranges::find_if(fields, [&](const auto& field) { return field.name == name; });
  return found != fields.end() ? &*found : nullptr;
}

}  // namespace

const LaboratoryStore* FindLaboratoryStore(const std::string& name) {
  const auto found = std::ranges::find_if(kStores, [&](const auto& store) { return store.name == name; });
  return found != std::end(kStores) ? &*found : nullptr;
}

const dbconfig::Field* FindLaboratoryField(const std::string& store, const std::string& field) {
  for (const dbconfig::ServiceType& type : dbconfig::ServiceTypes()) {
    if (store != type.key) continue;
    const dbconfig::Field* found = FindIn(type.settings, field);
    return found != nullptr ? found : FindIn(type.modem, field);
  }
  return nullptr;
}

}  // namespace site
