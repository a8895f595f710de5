// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "console/alertctl/site.h"
#include "console/alertctl/store_watch.h"
#include "console/operator/operated_window.h"
#include "console/site/library_calls.h"
#include "platform/base/guid.h"
#include "platform/base/module.h"

namespace alertctl {

/// The alerting library, loaded for what only it can do to services.
class Library {
 public:
  /// Loads it from beside this program. Throws a Failure (kInvalid) when it cannot be loaded, and one with
  /// kStoreFailure when it cannot open the stores.
  Library();
  ~Library();
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

  /// The index of a service in the library's list. Throws a Failure (kNothingMatched) when the list has no
  /// such one. The library loads all services here and has something to say about each that is broken; that
  /// is forgotten, because none of them was asked for.
  int IndexOf(const Json& service);
  /// The index of the first service for which `is_wanted` holds. Throws a Failure (kInvalid) that names what is missing
  /// ("a service that dials out") when there is none: its windows lead to what has no window of its own.
  int FirstOf(const std::string& what, const std::function<bool(int)>& is_wanted);

  using Story = console_operator::WindowOperator::Story;
  /// Does what opens windows, and works each of them with the next of `stories`. `what` says what that is for
  /// ("change the modem"). Throws a Failure when it does not come about: of a store (kStoreFailure), or what a window
  /// said against it (kInvalid).
  void Work(const std::string& what, const std::function<void()>& action, std::vector<Story> stories);
  console_operator::WindowOperator& Windows() { return windows_; }
  const site::LibraryCalls& Calls() const { return calls_; }
  /// What windows said although all went well, as a line for people; "" for nothing.
  std::string Notes() const;

  bool IsFirstOfType(int index) const;
  bool Copy(int index, const std::string& name, const platform::GUID& manager) const;
  bool Delete(int index, const platform::GUID& manager) const;
  bool Enable(int index, const platform::GUID& manager, bool enable) const;
  /// The identity of the last service of the list.
  platform::GUID LastService() const;
  /// Whether the manager delivers it, as the store says.
  bool IsLastEnabledOn(const platform::GUID& manager) const;
  bool DeleteUserEntry(int index, const platform::GUID& user) const;

  /// Why the library did not do what it was asked for ("delete the service ...") after IndexOf: the failure
  /// of the store where there was one, and what the library said about it.
  Failure Refusal(const std::string& what) const;
  /// Throws when a store failed since IndexOf although the library answered success: it does not look at everything
  /// that it writes. `done` says what was done all the same.
  void RequireWhole(const std::string& done) const;

 private:
  int ForgetLoading(int index);

  console_operator::WindowOperator windows_;
  const std::shared_ptr<StoreWatch> stores_;
  platform::DynamicLibrary library_;
  site::LibraryCalls calls_;
};

}  // namespace alertctl
