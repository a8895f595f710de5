// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/alertctl_site.h"
#include "platform/base/guid.h"
#include "platform/base/module.h"

namespace alertctl {

/// The alerting library, loaded for what only it can do to services. Its messages go to standard error.
class Library {
 public:
  /// Loads it from beside this program. Throws a Failure (kInvalid) when it cannot be loaded, and one with
  /// kStoreFailure when it cannot open the stores.
  Library();
  ~Library();

  /// The index of a service in the library's list. Throws a Failure (kNothingMatched) when the list has no
  /// such one.
  int IndexOf(const Json& service) const;
  bool IsFirstOfType(int index) const;
  bool Copy(int index, const std::string& name, const platform::GUID& manager) const;
  bool Delete(int index, const platform::GUID& manager) const;
  bool Enable(int index, const platform::GUID& manager, bool enable) const;
  /// The identity of the last service of the list.
  platform::GUID LastService() const;
  bool DeleteUserEntry(int index, const platform::GUID& user) const;

 private:
  platform::DynamicLibrary library_;
};

}  // namespace alertctl
