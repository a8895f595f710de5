// SPDX-License-Identifier: MIT
#include "companions/alertrecords/user_entry.h"

namespace alertrecords {

using alertstore::ALRTUSRINSTSERV;
using alertstore::Status;
using platform::GUID;

void FillUserLink(const GUID& user, const GUID& service, std::string_view service_name,
                  ALRTUSRINSTSERV& link) {
  link.userId = user;
  link.serviceId = service;
  link.serviceName.Assign(service_name);
}

Status FindUserLink(alertstore::CAlertUsrInstServDB& links, const GUID& user, const GUID& service,
                    ALRTUSRINSTSERV& link) {
  ALRTUSRINSTSERV found{};
  Status status = links.DBAlertRecFindFirst(alertstore::kLinkByUser, sizeof(GUID), &user, found);
  while (status == alertstore::kOk && (found.serviceId != service || found.userId != user))
    status = links.DBAlertRecFindNext(found);
  if (status == alertstore::kOk) link = found;
  return status == alertstore::kEndOfScan ? alertstore::kNotFound : status;
}

}  // namespace alertrecords
