// SPDX-License-Identifier: MIT
#include "console/site/failure.h"

#include "console/site/advice.h"

namespace site {

Failure StoreFailure(const std::string& what, alertstore::Status status) {
  return StoreFailure(what, status, {});
}

Failure StoreFailure(const std::string& what, alertstore::Status status, const std::string& cause) {
  return Failure(kStoreFailure, FailureText(what, status, cause));
}

}  // namespace site
