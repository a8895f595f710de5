// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

#include "console/site/library_calls.h"

namespace alertconsole {

/// Why the stores cannot be opened, as it was just found, and what to do.
std::string StoresCannotBeOpened();
/// What the services shown lack because it could not be read; "" when nothing does.
std::string LeftOutNote();

/// What keeps the console from starting, in words for the person in front of it.
class StartFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The alerting library, loaded. Its stores are open until it goes, once LibraryCalls::Reopen has opened them.
class AlertingLibrary : public site::LibraryCalls {
 public:
  /// Throws a StartFailure when it cannot be loaded.
  explicit AlertingLibrary(const std::string& path);
  ~AlertingLibrary();

 private:
  platform::DynamicLibrary library_;
};

}  // namespace alertconsole
