// SPDX-License-Identifier: MIT
#include "console/hosts/service_choice.h"

#include "companions/alertstore/stores.h"
#include "companions/dbconfig/strings.h"
#include "console/hosts/host_dialog.h"

namespace hosts {
namespace {

/// A store that cannot be read says nothing about the service; the call that follows will tell.
bool IsDeleted(const platform::GUID& service) {
  alertstore::CAlertNtfyServDB store;
  alertstore::ALRTNTFYSERV record{};
  record.serviceId = service;
  return store.DBOpen() == alertstore::kOk &&
         store.DBAlertRecRetrieve(service, record) == alertstore::kNotFound;
}

}  // namespace

std::vector<RecordList::Row> ServiceRows(const site::LibraryCalls& calls,
                                         const std::function<bool(int)>& wanted) {
  std::vector<RecordList::Row> rows;
  const int count = calls.DomainServiceGetCount();
  for (int index = 0; index < count; ++index) {
    if (wanted && !wanted(index)) continue;
    const alertstore::ALRTNTFYSERV& service = *calls.DomainServiceGetInfo(index);
    rows.push_back({service.serviceId,
                    {std::string(service.name.View()), dbconfig::ServiceTypeName(service.recordType)}});
  }
  return rows;
}

void AddServiceColumns(RecordList& list) {
  list.AddColumn("Service", 160);
  list.AddColumn("Type", 120);
}

int IndexOrTell(const site::LibraryCalls& calls, const platform::GUID& service, const std::string& gone) {
  const int index = calls.IndexOf(service);
  if (index >= 0 && !IsDeleted(service)) return index;
  Tell(gone);
  return -1;
}

}  // namespace hosts
