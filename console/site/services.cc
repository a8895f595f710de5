// SPDX-License-Identifier: MIT
#include "console/site/services.h"

#include "companions/alertstore/stores.h"
#include "console/site/walk.h"
#include "platform/base/utf8.h"

namespace site {
namespace {

using namespace alertstore;  // NOLINT: a service is named in records of several kinds
using platform::GUID;

/// Writes the name where records of `store` point at the service.
template <class Store>
Status TellOf(Store& store, GUID Store::RecordType::*service, const GUID& id, const std::string& name) {
  return ChangeAll(
      store, [&](const auto& record) { return record.*service == id && record.serviceName.View() != name; },
      [&](auto& record) { record.serviceName.Assign(name); });
}

}  // namespace

Status RenameService(const GUID& id, const std::string& name) {
  CAlertNtfyServDB services;
  CAlertUsrInstServDB links;
  CAlertSERV_INST_NTFY_SERVDB delivered;
  CAlertRespDB responses;
  const Status taken = WalkAll(services, [&](const ALRTNTFYSERV& service) {
    return service.serviceId != id && platform::EqualIgnoringCase(service.name.View(), name) ? kNotUnique
                                                                                             : kOk;
  });
  if (taken != kOk) return taken;
  if (const Status status = Change(services, id, [&](ALRTNTFYSERV& service) { service.name.Assign(name); }))
    return status;
  if (const Status status = TellOf(links, &ALRTUSRINSTSERV::serviceId, id, name)) return status;
  if (const Status status = TellOf(delivered, &ALRTSERV_INST_NTFY_SERVREC::serviceGuid, id, name))
    return status;
  return TellOf(responses, &ALERTRESPREC::serviceId, id, name);
}

Status SwitchService(const GUID& id, bool on) {
  CAlertNtfyServDB services;
  return Change(services, id, [&](ALRTNTFYSERV& service) { service.enabled = on ? 1 : 0; });
}

}  // namespace site
