// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "companions/alertstore/engine.h"

namespace alertctl {

/// Remembers the first failure of the stores since Forget. The alerting library answers no more than that
/// something failed, and works on the same engine.
class StoreWatch {
 public:
  alertstore::Status FirstFailure() const { return failure_; }
  /// Why it failed, and what was being done: "the disk is full (deleting a record in InstNtfyServDB.dat)".
  const std::string& Cause() const { return cause_; }
  void Forget() { failure_ = alertstore::kOk; }

  /// Answers `status`. A read that finds nothing has not failed.
  alertstore::Status NoteRead(alertstore::Status status, const std::string& doing);
  alertstore::Status NoteWrite(alertstore::Status status, const std::string& doing);

 private:
  alertstore::Status failure_ = alertstore::kOk;
  std::string cause_;
};

/// Hands every call to `base` and tells `watch` what came of it.
std::shared_ptr<alertstore::Engine> WatchEngine(std::shared_ptr<alertstore::Engine> base,
                                                std::shared_ptr<StoreWatch> watch);

}  // namespace alertctl
