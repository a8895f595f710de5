// SPDX-License-Identifier: MIT
#include "console/site/laboratory_steps.h"

#include <algorithm>
#include <cstring>

#include "companions/dbconfig/service_types.h"
#include "companions/dbconfig/site.h"
#include "console/site/failure.h"
#include "console/site/laboratory_settings.h"
#include "console/site/laboratory_stores.h"

namespace site {
namespace {

using alertstore::kNotFound;
using alertstore::kOk;
using alertstore::Status;
using platform::GUID;

[[noreturn]] void NotOurs(const std::string& what) {
  throw Failure(kInvalid, "laboratory.json names no field of " + what + ": somebody edited it");
}

const LaboratoryStore& StoreOf(const std::string& name, const std::string& what) {
  const LaboratoryStore* store = FindLaboratoryStore(name);
  if (store == nullptr) NotOurs(what);
  return *store;
}

/// Where a field stands in its record. The file may have been edited: nothing beside the field may be touched.
char* PlaceOf(const ChangedRecord& changed, const ChangedField& field, char* record) {
  const dbconfig::Field* found = FindLaboratoryField(changed.store, field.name);
  if (found == nullptr || field.before.size() != found->width || field.during.size() != found->width)
    NotOurs(changed.what);
  return record + found->offset;
}

bool Holds(const char* place, const std::string& bytes) {
  return std::memcmp(place, bytes.data(), bytes.size()) == 0;
}

void Put(char* place, const std::string& bytes) { std::memcpy(place, bytes.data(), bytes.size()); }

void PointRecord(const ChangedRecord& changed) {
  bool as_found = true;
  const Status status = StoreOf(changed.store, changed.what).edit(changed.id, [&](char* record) {
    for (const ChangedField& field : changed.fields)
      as_found = as_found && Holds(PlaceOf(changed, field, record), field.before);
    for (const ChangedField& field : changed.fields)
      if (as_found) Put(PlaceOf(changed, field, record), field.during);
    return as_found;
  });
  if (status != kOk) throw StoreFailure("point " + changed.what + " at the laboratory", status);
  if (!as_found)
    throw Failure(kStoreFailure, "somebody just changed " + changed.what +
                                     ", which was to be pointed at the "
                                     "laboratory: try again");
}

/// Puts back those fields of a record that are still the laboratory's. False where somebody chose anew.
bool PutFieldsBack(const ChangedRecord& changed, char* record, bool& kept) {
  const ChangedField& first = changed.fields.front();
  kept = !Holds(PlaceOf(changed, first, record), first.before);
  if (!Holds(PlaceOf(changed, first, record), first.during)) return false;
  kept = false;
  for (const ChangedField& field : changed.fields) {
    char* place = PlaceOf(changed, field, record);
    Holds(place, field.during) ? Put(place, field.before) : void(kept = true);
  }
  return true;
}

// A record that is gone needs nothing back.
void PutRecordBack(const ChangedRecord& changed, std::vector<std::string>& left) {
  bool kept = false;
  const Status status = StoreOf(changed.store, changed.what).edit(changed.id, [&](char* record) {
    return PutFieldsBack(changed, record, kept);
  });
  if (status != kOk && status != kNotFound) throw StoreFailure("put back " + changed.what, status);
  if (kept) left.push_back(changed.what);
}

void AddRecord(const AddedRecord& added) {
  const Status status = StoreOf(added.store, added.what).add(added.bytes);
  if (status != kOk) throw StoreFailure("add " + added.what, status);
}

/// Whether a service uses the modem with that identity, of its own or as its backup.
bool IsModemInUse(const GUID& modem) {
  dbconfig::Site site;
  if (const Status status = dbconfig::ReadSite(site)) throw StoreFailure("read the stores", status);
  for (const dbconfig::ServiceType& type : dbconfig::ServiceTypes()) {
    if (type.modem.empty()) continue;
    const auto uses = [&](const auto& record) {
      return std::memcmp(record.data() + type.modem.front().offset, &modem, sizeof modem) == 0;
    };
    const auto records = site.specific.find(type.record_type);
    if (records != site.specific.end() && std::ranges::any_of(records->second, uses)) return true;
  }
  return false;
}

/// Whoever chose the laboratory's modem for another service must not be left with one that is gone.
bool IsInUse(const AddedRecord& added) {
  GUID id{};
  std::memcpy(&id, added.bytes.data(), std::min(added.bytes.size(), sizeof id));
  return added.store == "modems" && IsModemInUse(id);
}

void TakeRecordAway(const AddedRecord& added, std::vector<std::string>& left) {
  if (IsInUse(added)) return left.push_back(added.what + ", which a service uses");
  bool removed = true;
  const Status status = StoreOf(added.store, added.what).remove(added.bytes, removed);
  if (status != kOk && status != kNotFound) throw StoreFailure("remove " + added.what, status);
  if (!removed) left.push_back(added.what);
}

}  // namespace

std::vector<LaboratoryStep> StepsToLaboratory(const LaboratoryChanges& changes) {
  std::vector<LaboratoryStep> steps = {[&changes] { WriteSettings(changes.settings); }};
  for (const AddedRecord& added : changes.added) steps.push_back([&added] { AddRecord(added); });
  for (const ChangedRecord& changed : changes.changed) steps.push_back([&changed] { PointRecord(changed); });
  return steps;
}

std::vector<LaboratoryStep> StepsBack(const LaboratoryChanges& changes, std::vector<std::string>& left) {
  std::vector<LaboratoryStep> steps;
  for (const ChangedRecord& changed : changes.changed)
    steps.push_back([&changed, &left] { PutRecordBack(changed, left); });
  for (const AddedRecord& added : changes.added)
    steps.push_back([&added, &left] { TakeRecordAway(added, left); });
  steps.push_back([&changes, &left] { PutSettingsBack(changes.settings, left); });
  return steps;
}

}  // namespace site
