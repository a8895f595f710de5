// SPDX-License-Identifier: MIT
#include "companions/agentui/delivering_managers.h"

#include <algorithm>

#include "companions/alertstore/stores.h"
#include "companions/dbconfig/store_reader.h"

namespace agentui {
namespace {

using alertstore::Status;

struct Enabled {
  std::vector<alertstore::ALRT_SRV_CFGREC> managers;
  std::vector<alertstore::ALRTSERV_INST_NTFY_SERVREC> entries;
};

/// Reads both stores at one moment.
Status Read(Enabled& enabled) {
  const auto managers = dbconfig::MakeReader<alertstore::CAlert_SRV_CFGDB>(enabled.managers);
  const auto entries = dbconfig::MakeReader<alertstore::CAlertSERV_INST_NTFY_SERVDB>(enabled.entries);
  for (auto* reader : {managers.get(), entries.get()})
    if (const Status opened = reader->Open(); opened != alertstore::kOk) return opened;
  const auto engine = alertstore::CurrentEngine();
  const alertstore::ReadScope one_moment(*engine);
  if (one_moment.Result() != alertstore::kOk) return one_moment.Result();
  const Status read = managers->ReadAll();
  return read != alertstore::kOk ? read : entries->ReadAll();
}

/// Nothing for an entry whose manager was deleted.
void AddNameOf(const platform::GUID& id, const Enabled& enabled, std::vector<std::string>& names) {
  for (const auto& manager : enabled.managers)
    if (manager.guid == id) {
      std::string name(manager.managerName.View());
      if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(std::move(name));
    }
}

}  // namespace

Status ReadDeliveringManagers(const platform::GUID& service, std::vector<std::string>& names) {
  Enabled enabled;
  if (const Status status = Read(enabled); status != alertstore::kOk) return status;
  std::vector<std::string> found;
  for (const bool backup : {false, true})
    for (const auto& entry : enabled.entries)
      if (entry.serviceGuid == service && (entry.isBackup != 0) == backup)
        AddNameOf(entry.managerGuid, enabled, found);
  names = std::move(found);
  return alertstore::kOk;
}

}  // namespace agentui
