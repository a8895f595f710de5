// SPDX-License-Identifier: MIT
#include "console/alertctl/library.h"

#include "companions/alertstore/engine.h"
#include "companions/alertstore/records.h"
#include "console/site/backup_manager.h"

namespace alertctl {

using platform::GUID;

Library::Library() : stores_(std::make_shared<StoreWatch>()) {
  alertstore::SetEngine(WatchEngine(alertstore::CurrentEngine(), stores_));
  const std::string path = site::LibraryPath();
  if (!library_.Load(path))
    throw Failure(kInvalid, "cannot load the alerting library: " + library_.Error() +
                                "; install it beside this program, or correct ALERTING_LIBRARY");
  if (const std::string missing = site::FindCalls(library_, calls_); !missing.empty())
    throw Failure(kInvalid, path + " has no function " + missing +
                                ": install the library that belongs to this program, or correct "
                                "ALERTING_LIBRARY");
  if (calls_.OpenDBs() > site::kStoresWereOpen)
    throw StoreFailure("open the stores", stores_->FirstFailure(), stores_->Cause());
  calls_.DomainServiceSetBackupServer(site::ReadBackupManager());
}

/// The report of a test arrives on a thread of the library's, which ends no sooner than the library itself.
Library::~Library() {
  windows_.ForgetPosted();
  calls_.CloseDBs();
  alertstore::SetEngine(nullptr);
}

int Library::IndexOf(const Json& service) {
  if (calls_.DomainServiceGetCount() == 0) throw Refusal("load the services");
  const int index = calls_.IndexOf(IdOf(service));
  if (index >= 0) return ForgetLoading(index);
  if (stores_->FirstFailure() != alertstore::kOk) throw Refusal("load the services");
  throw Failure(kNothingMatched,
                "the service " + service["name"].dump() + " cannot be loaded by the alerting library");
}

int Library::FirstOf(const std::string& what, const std::function<bool(int)>& is_wanted) {
  const int count = calls_.DomainServiceGetCount();
  for (int index = 0; index < count; ++index)
    if (is_wanted(index)) return ForgetLoading(index);
  if (stores_->FirstFailure() != alertstore::kOk) throw Refusal("load the services");
  throw Failure(kInvalid,
                "the site has no " + what + ", whose window leads there: \"alertctl init\" adds one");
}

void Library::Work(const std::string& what, const std::function<void()>& action, std::vector<Story> stories) {
  try {
    windows_.Work(action, std::move(stories));
  } catch (const Failure& failure) {
    const bool is_failure = stores_->FirstFailure() != alertstore::kOk;
    // That a name is taken the window says in its own words.
    if (is_failure && stores_->FirstFailure() != alertstore::kNotUnique) throw Refusal(what);
    throw Failure(failure.Code(), "cannot " + what + ": " + failure.what());
  }
}

std::string Library::Notes() const {
  return windows_.Said().empty() ? "" : "Note: " + windows_.Said() + "\n";
}

Failure Library::Refusal(const std::string& what) const {
  const std::string said = windows_.Said().empty() ? "" : " The alerting library says: " + windows_.Said();
  if (stores_->FirstFailure() == alertstore::kOk)
    return Failure(kStoreFailure,
                   "cannot " + what + ": no store failed, but the alerting library did." + said);
  return Failure(kStoreFailure,
                 StoreFailure(what, stores_->FirstFailure(), stores_->Cause()).what() + ("." + said));
}

void Library::RequireWhole(const std::string& done) const {
  if (stores_->FirstFailure() == alertstore::kOk) return;
  throw Failure(kStoreFailure, done + ", but not everything that belongs to it: " + stores_->Cause());
}

int Library::ForgetLoading(int index) {
  windows_.Forget();
  stores_->Forget();
  return index;
}

bool Library::IsFirstOfType(int index) const { return calls_.DomainServiceIsFirstOfType(index) != 0; }

bool Library::Copy(int index, const std::string& name, const GUID& manager) const {
  return calls_.DomainServiceCopyServiceX(index, name.c_str(), manager) != 0;
}

bool Library::Delete(int index, const GUID& manager) const {
  return calls_.DomainServiceDeleteService(index, manager) != 0;
}

bool Library::Enable(int index, const GUID& manager, bool enable) const {
  return calls_.DomainServiceServerEnable(index, manager, enable ? 1 : 0) != 0;
}

GUID Library::LastService() const {
  return calls_.DomainServiceGetInfo(calls_.DomainServiceGetCount() - 1)->serviceId;
}

bool Library::IsLastEnabledOn(const GUID& manager) const {
  return calls_.DomainServiceIsServer(calls_.DomainServiceGetCount() - 1, manager) != 0;
}

bool Library::DeleteUserEntry(int index, const GUID& user) const {
  return calls_.UserServiceUserDelete(index, user) != 0;
}

}  // namespace alertctl
