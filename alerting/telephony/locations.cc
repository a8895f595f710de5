// SPDX-License-Identifier: MIT
#include "alerting/telephony/locations.h"

#include <string>

#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"

namespace alerting {
namespace {

/// Empties the drop-down, adds every location's name and answers the name of the location of that identity.
std::string FillNames(ui::ComboBox& combo, const GUID& wanted) {
  EnsureStoresOpen();
  combo.RemoveAll();
  std::string name;
  ALRTMODEM_LOCATION location{};
  Status status = LocationStore().DBAlertRecFindFirst(kLocationByIdentity, 0, nullptr, location);
  if (status != kOk) ShowMessage(kIdsNoLocations);
  for (; status == kOk; status = LocationStore().DBAlertRecFindNext(location)) {
    combo.Add(location.name.View());
    if (location.guid == wanted) name = location.name.View();
  }
  return name;
}

/// Names that differ in case alone are different locations, so the very name comes first.
int IndexOf(const ui::ComboBox& combo, std::string_view name) {
  const int exact = combo.FindBytes(name);
  return exact >= 0 ? exact : combo.FindText(name);
}

/// Finds by the bytes of a name as its field has room for them.
Status Find(std::string_view name, std::size_t key_length, ALRTMODEM_LOCATION& location) {
  decltype(location.name) key{};
  key.Assign(name);
  if (key.View() != name) return kNotFound;
  return LocationStore().DBAlertRecFindFirst(kLocationByName, static_cast<std::uint32_t>(key_length),
                                             key.Data(), location);
}

Status Find(std::string_view name, ALRTMODEM_LOCATION& location) {
  return Find(name, location.name.kWidth, location);
}

/// Makes a change of the store under its lock; `change` answers the message of its failure, 0 for none. The lock is free
/// again before a message keeps other consoles waiting.
template <class Change>
bool UnderLock(int lock_failed, Change&& change) {
  EnsureStoresOpen();
  StoreLock lock(LocationStore());
  const int message = lock.Result() == kOk ? change() : lock_failed;
  lock.Release();
  return message == 0 ? true : Fail(message);
}

void CopySettings(const ALRTMODEM_LOCATION& from, ALRTMODEM_LOCATION& to) {
  to.areaCode = from.areaCode;
  to.localAccess = from.localAccess;
  to.longDistanceAccess = from.longDistanceAccess;
  to.hasCallWaiting = from.hasCallWaiting;
  to.callWaitingDisable = from.callWaitingDisable;
  to.toneDialing = from.toneDialing;
  to.countryCode = from.countryCode;
  to.countryId = from.countryId;
}

}  // namespace

void FillLocationCombo(ui::ComboBox& combo, std::string_view select_name) {
  FillNames(combo, kNullGuid);
  combo.Select(select_name.empty() ? 0 : IndexOf(combo, select_name));
}

void FillLocationComboByGuid(ui::ComboBox& combo, const GUID& location) {
  combo.Select(combo.FindBytes(FillNames(combo, location)));
}

bool ReadLocation(std::string_view name, ALRTMODEM_LOCATION& location) {
  EnsureStoresOpen();
  return Find(name, location) == kOk;
}

bool FindLocationByName(std::string_view name, GUID& id) {
  ALRTMODEM_LOCATION location{};
  const bool found = ReadLocation(name, location);
  id = found ? location.guid : kNullGuid;
  return found;
}

ALRTMODEM_LOCATION NewLocation(std::string_view name) {
  ALRTMODEM_LOCATION location{};
  location.name.Assign(name);
  location.toneDialing = 1;
  location.countryCode = 1;
  return location;
}

bool CreateLocation(std::string_view name, GUID& id) {
  ALRTMODEM_LOCATION added = NewLocation(name), found{};
  return UnderLock(kIdsLocationAddFailed, [&]() -> int {
    if (Find(added.name.View(), added.name.View().size(), found) == kOk) return kIdsLocationExists;
    return LocationStore().DBAlertRecAdd(added, id) == kOk ? 0 : kIdsLocationAddFailed;
  });
}

bool UpdateLocation(std::string_view name, const ALRTMODEM_LOCATION& settings) {
  return UnderLock(kIdsLocationUpdateFailed, [&]() -> int {
    ALRTMODEM_LOCATION stored{};
    if (Find(name, stored) != kOk) return kIdsNoLocations;
    CopySettings(settings, stored);
    return LocationStore().DBAlertRecUpdate(stored) == kOk ? 0 : kIdsLocationUpdateFailed;
  });
}

bool DeleteLocation(std::string_view name) {
  return UnderLock(kIdsLocationDeleteFailed, [&]() -> int {
    ALRTMODEM_LOCATION stored{};
    if (Find(name, stored) != kOk) return kIdsNoLocations;
    return LocationStore().DBAlertRecDelete(stored.guid) == kOk ? 0 : kIdsLocationDeleteFailed;
  });
}

}  // namespace alerting
