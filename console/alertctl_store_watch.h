// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "companions/alertstore/engine.h"

namespace alertctl {

/// Remembers the first failure of the stores since Forget. The alerting library answers no more than that
/// something failed, and works on the same engine.
class StoreWatch {
 public:
  alertstore::Status FirstFailure() const { return failure_; }
  void Forget() { failure_ = alertstore::kOk; }

  /// Answers `status`. A read that finds nothing has not failed.
  alertstore::Status NoteRead(alertstore::Status status);
  alertstore::Status NoteWrite(alertstore::Status status);

 private:
  alertstore::Status failure_ = alertstore::kOk;
};

/// Hands every call to `base` and tells `watch` what came of it.
std::shared_ptr<alertstore::Engine> WatchEngine(std::shared_ptr<alertstore::Engine> base,
                                                std::shared_ptr<StoreWatch> watch);

}  // namespace alertctl
