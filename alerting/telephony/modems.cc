// SPDX-License-Identifier: MIT
#include "alerting/telephony/modems.h"

#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"

namespace alerting {
namespace {

constexpr std::size_t kMaxName = decltype(ALRTSERV_MODEM::name)::kMaxLength;

/// The part of a status that says why.
constexpr Status kReasonMask = 0xFFFF;
constexpr Status kNameTaken = 206;

bool FindModemById(ModemStoreOf store, const GUID& id, ALRTSERV_MODEM& record) {
  EnsureStoresOpen();
  return store().DBAlertRecFindFirst(kModemByIdentity, sizeof(id), &id, record) == kOk;
}

bool IsModemName(std::string_view name) {
  ALRTSERV_MODEM modem{};
  return ModemStore().DBAlertRecFindFirst(kModemByName, static_cast<std::uint32_t>(name.size()), name.data(),
                                          modem) == kOk;
}

/// Adds a copy of a record under another name; `taken` and `failed` are the messages of an add that fails.
bool AddNamed(ModemStoreOf store, ALRTSERV_MODEM record, std::string_view name, GUID& id, int taken,
              int failed) {
  record.guid = kNullGuid;
  record.name.Assign(name);
  const Status status = store().DBAlertRecAdd(record, id);
  if (status == kOk) return true;
  return Fail((status & kReasonMask) == kNameTaken ? taken : failed);
}

bool Delete(ModemStoreOf store, const GUID& id) {
  EnsureStoresOpen();
  return store().DBAlertRecDelete(id) == kOk || Fail(kIdsModemDeleteFailed);
}

}  // namespace

bool FindModemOrFirst(ModemStoreOf store, const GUID& id, ALRTSERV_MODEM& record) {
  if (!id.IsNull()) return FindModemById(store, id, record);
  EnsureStoresOpen();
  return store().DBAlertRecFindFirst(kModemByIdentity, 0, nullptr, record) == kOk;
}

bool UpdateModem(ModemStoreOf store, const ALRTSERV_MODEM& record) {
  EnsureStoresOpen();
  ALRTSERV_MODEM stored{};
  stored.guid = record.guid;
  StoreLock lock(store());
  if (lock.Result() == kOk) store().DBAlertRecRetrieve(record.guid, stored);
  const Status status = lock.Result() == kOk ? store().DBAlertRecUpdate(record) : lock.Result();
  lock.Release();
  return status == kOk || Fail(kIdsModemUpdateFailed);
}

bool CreateModemFromType(const GUID& type, std::string_view name, GUID& id) {
  ALRTSERV_MODEM modem{};
  if (!FindModemById(ModemTypeStore, type, modem)) return Fail(kIdsNoModems);
  modem.modemTypeGuid = type;
  return AddNamed(ModemStore, modem, name, id, kIdsModemExists, kIdsModemAddFailed);
}

bool CreateModemType(std::string_view name, const GUID& basis, GUID& id) {
  ALRTSERV_MODEM type{};
  if (!FindModemById(ModemTypeStore, basis, type)) return Fail(kIdsModemTypeAddFailed);
  return AddNamed(ModemTypeStore, type, name, id, kIdsModemTypeExists, kIdsModemTypeAddFailed);
}

bool DeleteModem(const GUID& id) { return Delete(ModemStore, id); }
bool DeleteModemType(const GUID& id) { return Delete(ModemTypeStore, id); }

std::string ProposeModemName(std::string_view type_name) {
  EnsureStoresOpen();
  std::string name(type_name);
  for (int count = 2; IsModemName(name); ++count) {
    const std::string number = " (" + std::to_string(count) + ")";
    name = type_name.substr(0, platform::Utf8Prefix(type_name, kMaxName - number.size()));
    name += number;
  }
  return name;
}

}  // namespace alerting
