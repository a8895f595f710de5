// SPDX-License-Identifier: MIT
#include "console/alertctl_library.h"

#include <cstdlib>
#include <filesystem>

#include "companions/alertstore/engine.h"
#include "companions/alertstore/records.h"

namespace alertctl {
namespace {

namespace fs = std::filesystem;
using platform::GUID;

/// What ALERTING_LIBRARY names, else where the library is installed or built in relation to this program,
/// else wherever the loader finds it.
std::string LibraryPath() {
  if (const char* named = std::getenv("ALERTING_LIBRARY"); named != nullptr && *named != '\0') return named;
  std::error_code ignored;
  const fs::path program = fs::read_symlink("/proc/self/exe", ignored);
  const fs::path beside = program.parent_path() / "../lib/libalerting.so";
  return fs::exists(beside, ignored) ? beside.lexically_normal().string() : "libalerting.so";
}

/// The exported function of that decorated name.
template <class Function>
Function* Find(const platform::DynamicLibrary& library, const char* decorated_name) {
  void* function = library.Find(decorated_name);
  if (function == nullptr)
    throw Failure(kInvalid, LibraryPath() + " has no function " + decorated_name +
                                ": install the library that belongs to this program, or correct "
                                "ALERTING_LIBRARY");
  return reinterpret_cast<Function*>(function);
}

}  // namespace

platform::ui::Answer Messages::ShowMessage(const platform::ui::Message& message) {
  text_ += (text_.empty() ? "" : " ") + message.text;
  return platform::ui::Answer::kOk;
}

Library::Library() : stores_(std::make_shared<StoreWatch>()) {
  alertstore::SetEngine(WatchEngine(alertstore::CurrentEngine(), stores_));
  if (!library_.Load(LibraryPath()))
    throw Failure(kInvalid, "cannot load the alerting library: " + library_.Error() +
                                "; install it beside this program, or correct ALERTING_LIBRARY");
  const std::uint32_t opened = Find<std::uint32_t()>(library_, "OpenDBs")();
  if (opened > 1) throw StoreFailure("open the stores", stores_->FirstFailure(), stores_->Cause());
}

Library::~Library() {
  if (void* close = library_.Find("CloseDBs")) reinterpret_cast<std::uint32_t (*)()>(close)();
  alertstore::SetEngine(nullptr);
}

int Library::IndexOf(const Json& service) {
  const GUID id = IdOf(service);
  const int count = Find<std::int32_t()>(library_, "_DomainServiceGetCount@0")();
  if (count == 0) throw Refusal("load the services");
  const auto info = Find<const alertstore::ALRTNTFYSERV*(std::int32_t)>(library_, "_DomainServiceGetInfo@4");
  for (int index = 0; index < count; ++index)
    if (info(index)->serviceId == id) return ForgetLoading(index);
  if (stores_->FirstFailure() != alertstore::kOk) throw Refusal("load the services");
  throw Failure(kNothingMatched,
                "the service " + service["name"].dump() + " cannot be loaded by the alerting library");
}

Failure Library::Refusal(const std::string& what) const {
  const std::string said = messages_.Text().empty() ? "" : " The alerting library says: " + messages_.Text();
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
  messages_.Forget();
  stores_->Forget();
  return index;
}

bool Library::IsFirstOfType(int index) const {
  return Find<std::uint32_t(std::int32_t)>(library_, "_DomainServiceIsFirstOfType@4")(index) != 0;
}

bool Library::Copy(int index, const std::string& name, const GUID& manager) const {
  return Find<std::uint32_t(std::int32_t, const char*, GUID)>(library_, "_DomainServiceCopyServiceX@24")(
             index, name.c_str(), manager) != 0;
}

bool Library::Delete(int index, const GUID& manager) const {
  return Find<std::uint32_t(std::int32_t, GUID)>(library_, "_DomainServiceDeleteService@20")(index,
                                                                                             manager) != 0;
}

bool Library::Enable(int index, const GUID& manager, bool enable) const {
  return Find<std::uint32_t(std::int32_t, GUID, std::uint32_t)>(library_, "_DomainServiceServerEnable@24")(
             index, manager, enable ? 1 : 0) != 0;
}

GUID Library::LastService() const {
  const int count = Find<std::int32_t()>(library_, "_DomainServiceGetCount@0")();
  const auto info = Find<const alertstore::ALRTNTFYSERV*(std::int32_t)>(library_, "_DomainServiceGetInfo@4");
  return info(count - 1)->serviceId;
}

bool Library::DeleteUserEntry(int index, const GUID& user) const {
  return Find<std::uint32_t(std::int32_t, GUID)>(library_, "_UserServiceUserDelete@20")(index, user) != 0;
}

}  // namespace alertctl
