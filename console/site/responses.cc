// SPDX-License-Identifier: MIT
#include "console/site/responses.h"

#include "companions/alertstore/stores.h"

namespace site {

using alertstore::Status;

Status AddResponse(alertstore::ALERTRESPREC& response) {
  alertstore::CAlertRespDB store;
  platform::GUID id{};
  if (const Status status = store.DBOpen()) return status;
  return store.DBAlertRecAdd(response, id);
}

Status UpdateResponse(const alertstore::ALERTRESPREC& response) {
  alertstore::CAlertRespDB store;
  if (const Status status = store.DBOpen()) return status;
  return store.DBAlertRecUpdate(response);
}

Status RemoveResponse(const platform::GUID& id) {
  alertstore::CAlertRespDB store;
  if (const Status status = store.DBOpen()) return status;
  return store.DBAlertRecDelete(id);
}

Status ReadResponse(const platform::GUID& id, alertstore::ALERTRESPREC& response) {
  alertstore::CAlertRespDB store;
  if (const Status status = store.DBOpen()) return status;
  alertstore::ALERTRESPREC read{};
  read.responseId = id;
  const Status status = store.DBAlertRecRetrieve(id, read);
  if (status == alertstore::kOk) response = read;
  return status;
}

void PointAt(const alertstore::ALRTNTFYSERV& service, alertstore::ALERTRESPREC& response) {
  response.serviceId = service.serviceId;
  response.serviceName.Assign(service.name.View());
}

}  // namespace site
