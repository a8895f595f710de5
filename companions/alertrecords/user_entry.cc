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
  const GUID key[] = {service, user};
  ALRTUSRINSTSERV found{};
  const Status status = links.DBAlertRecFindFirst(alertstore::kLinkByServiceAndUser, sizeof key, key, found);
  if (status == alertstore::kOk) link = found;
  return status;
}

}  // namespace alertrecords
