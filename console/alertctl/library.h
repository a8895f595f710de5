// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "console/alertctl/site.h"
#include "console/alertctl/store_watch.h"
#include "console/site/library_calls.h"
#include "platform/base/guid.h"
#include "platform/base/module.h"
#include "platform/ui/desktop.h"
#include "platform/ui/message.h"

namespace alertctl {

/// The desktop while it lives: keeps what the library would show in message boxes.
class Messages : public platform::ui::Desktop {
 public:
  Messages() : before_(SetCurrent(this)) {}
  ~Messages() override { SetCurrent(before_); }
  Messages(const Messages&) = delete;
  Messages& operator=(const Messages&) = delete;

  platform::ui::Answer ShowMessage(const platform::ui::Message& message) override;

  const std::string& Text() const { return text_; }
  void Forget() { text_.clear(); }

 private:
  platform::ui::Desktop* const before_;
  std::string text_;
};

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
  bool IsFirstOfType(int index) const;
  bool Copy(int index, const std::string& name, const platform::GUID& manager) const;
  bool Delete(int index, const platform::GUID& manager) const;
  bool Enable(int index, const platform::GUID& manager, bool enable) const;
  /// The identity of the last service of the list.
  platform::GUID LastService() const;
  bool DeleteUserEntry(int index, const platform::GUID& user) const;

  /// Why the library did not do what it was asked for ("delete the service ...") after IndexOf: the failure
  /// of the store where there was one, and what the library said about it.
  Failure Refusal(const std::string& what) const;
  /// Throws when a store failed since IndexOf although the library answered success: it does not look at everything
  /// that it writes. `done` says what was done all the same.
  void RequireWhole(const std::string& done) const;

 private:
  int ForgetLoading(int index);

  Messages messages_;
  const std::shared_ptr<StoreWatch> stores_;
  platform::DynamicLibrary library_;
  site::LibraryCalls calls_;
};

}  // namespace alertctl
