// SPDX-License-Identifier: MIT
#include "console/site/managers.h"

#include <vector>

#include "companions/alertstore/stores.h"
#include "console/site/advice.h"
#include "console/site/walk.h"
#include "platform/base/utf8.h"

namespace site {
namespace {

using namespace alertstore;  // NOLINT: a manager is named in records of several kinds
using platform::GUID;

/// kNotUnique when another manager than `id` bears the name.
Status CheckNameIsFree(CAlert_SRV_CFGDB& managers, const GUID& id, const std::string& name) {
  return WalkAll(managers, [&](const ALRT_SRV_CFGREC& manager) {
    return manager.guid != id && platform::EqualIgnoringCase(manager.managerName.View(), name) ? kNotUnique
                                                                                               : kOk;
  });
}

}  // namespace

Status AddManager(const std::string& name, GUID& id) {
  CAlert_SRV_CFGDB managers;
  if (const Status status = managers.DBOpen()) return status;
  const StoreLock lock(managers);
  if (lock.Result() != kOk) return lock.Result();
  if (const Status status = CheckNameIsFree(managers, platform::kNullGuid, name)) return status;
  ALRT_SRV_CFGREC record{};
  record.managerName.Assign(name);
  return managers.DBAlertRecAdd(record, id);
}

Status RenameManager(const GUID& id, const std::string& name) {
  CAlert_SRV_CFGDB managers;
  CAlertSERV_MODEMDB modems;
  if (const Status status = CheckNameIsFree(managers, id, name)) return status;
  const Status told = ChangeAll(
      modems, [&](const ALRTSERV_MODEM& modem) { return modem.managerGuid == id; },
      [&](ALRTSERV_MODEM& modem) { modem.managerName.Assign(name); });
  if (told != kOk) return told;
  return Change(managers, id, [&](ALRT_SRV_CFGREC& manager) { manager.managerName.Assign(name); });
}

Status FindModemOf(const GUID& id, std::string& modem) {
  CAlertSERV_MODEMDB modems;
  modem.clear();
  return WalkAll(modems, [&](const ALRTSERV_MODEM& record) {
    if (modem.empty() && record.managerGuid == id) modem = record.name.View();
    return kOk;
  });
}

std::string RemovalProblem(const GUID& id, Status& status) {
  std::string modem;
  status = FindModemOf(id, modem);
  if (status != kOk) return FailureText("read the modems", status);
  return modem.empty()
             ? ""
             : "The modem \"" + modem +
                   "\" is attached to this alert manager. Attach it to another one or delete it first.";
}

Status RemoveManager(const GUID& id) {
  CAlertSERV_INST_NTFY_SERVDB delivered;
  CAlert_SRV_CFGDB managers;
  std::vector<GUID> entries;
  const Status read = Walk(
      delivered, kEnabledServiceByManager,
      [&](const ALRTSERV_INST_NTFY_SERVREC& entry) {
        entries.push_back(entry.guid);
        return kOk;
      },
      id);
  if (read != kOk) return read;
  for (const GUID& entry : entries)
    if (const Status status = delivered.DBAlertRecDelete(entry); status != kOk && status != kNotFound)
      return status;
  if (const Status status = managers.DBOpen()) return status;
  return managers.DBAlertRecDelete(id);
}

}  // namespace site
