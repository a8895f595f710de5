// SPDX-License-Identifier: MIT
#include "console/hosts/store_response.h"

#include "console/hosts/host_dialog.h"
#include "console/site/advice.h"
#include "console/site/responses.h"

namespace hosts {
namespace {

bool Succeeded(const std::string& what, alertstore::Status status) {
  if (status != alertstore::kOk) Tell(site::FailureText(what, status));
  return status == alertstore::kOk;
}

}  // namespace

bool FetchResponse(const platform::GUID& id, alertstore::ALERTRESPREC& response) {
  return Succeeded("read the response", site::ReadResponse(id, response));
}

bool StoreResponse(const site::LibraryCalls& calls, alertstore::ALERTRESPREC& response) {
  return calls.DomainServiceValidateResponse(&response) != 0 &&
         Succeeded("store the response", site::UpdateResponse(response));
}

}  // namespace hosts
