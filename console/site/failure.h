// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "companions/alertstore/status.h"

namespace site {

/// What a program of the console ends with (docs/alertctl.md).
enum ExitCode {
  kDone = 0,
  kUsage = 2,
  kNothingMatched = 3,
  kInvalid = 4,
  kStoreFailure = 5,
  kTestRefused = 6,  ///< and those behind it: what became of a test
  kTestNotReached = 7,
  kTestNotPossible = 8,
  kTestFailed = 9
};

/// Something cannot be done. The text says which record, why, and what to do.
class Failure : public std::runtime_error {
 public:
  Failure(ExitCode code, const std::string& text, std::vector<std::string> details = {})
      : std::runtime_error(text), code_(code), details_(std::move(details)) {}
  ExitCode Code() const { return code_; }
  /// All that is wrong, where the text is about many things at once.
  const std::vector<std::string>& Details() const { return details_; }

 private:
  ExitCode code_;
  std::vector<std::string> details_;
};

/// The failure of a store just now, while doing something ("add the user \"Ann\""), with what can be done about it.
Failure StoreFailure(const std::string& what, alertstore::Status status);
/// The same, where the cause was noted before.
Failure StoreFailure(const std::string& what, alertstore::Status status, const std::string& cause);

}  // namespace site
