// SPDX-License-Identifier: MIT
#include "alerting/services/service_list.h"

#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"
#include "platform/ui/desktop.h"

namespace alerting {
CNtfyServiceList& TheServices() {
  static CNtfyServiceList list;
  return list;
}

std::unique_ptr<CNtfyService> CNtfyServiceList::MakeObject(const ALRTNTFYSERV& record) {
  const std::uint32_t code = ServiceTypeFromRecordType(record.recordType);
  std::unique_ptr<CNtfyService> service = MakeService(code, record.serviceId);
  if (!service) return nullptr;
  service->Load();
  service->SetCode(code);
  return service;
}

bool CNtfyServiceList::Read() {
  EnsureStoresOpen();
  if (!stale_) return has_been_read_;
  stale_ = false;
  const ui::WaitCursor wait;
  EnsureStoresOpen();
  try {
    if (!ReadAll()) return Fail(kIdsListReadFailed);
  } catch (...) {
    RemoveAll();  // half a list must not pass for the whole
    throw;
  }
  has_been_read_ = true;
  return true;
}

bool CNtfyServiceList::ReadAll() {
  CAlertNtfyServDB& store = ServiceStore();
  ALRTNTFYSERV record{};
  Status status = store.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record);
  if (status != kOk) return false;
  for (; status == kOk; status = store.DBAlertRecFindNext(record)) Append(MakeObject(record));
  return true;
}

void CNtfyServiceList::Append(std::unique_ptr<CNtfyService> service) {
  if (!service) return;
  services_.push_back(std::move(service));
  IndexFrom(services_.size() - 1);
}

void CNtfyServiceList::IndexFrom(std::size_t index) {
  for (std::size_t i = index; i < services_.size(); ++i) {
    by_id_.emplace(services_[i]->ServiceId(), static_cast<int>(i));
    first_of_type_.emplace(services_[i]->Code(), static_cast<int>(i));
  }
}

CNtfyService* CNtfyServiceList::GetAt(int index) const {
  return index >= 0 && index < GetCount() ? services_[static_cast<std::size_t>(index)].get() : nullptr;
}

std::optional<int> CNtfyServiceList::FindById(const GUID& id) const {
  const auto found = by_id_.find(id);
  return found != by_id_.end() ? std::optional<int>(found->second) : std::nullopt;
}

bool CNtfyServiceList::IsFirstOfType(int index) const {
  const CNtfyService* service = GetAt(index);
  if (service == nullptr) return false;
  const auto first = first_of_type_.find(service->Code());
  return first != first_of_type_.end() && first->second == index;
}

bool CNtfyServiceList::AddFromStore(const GUID& id) {
  EnsureStoresOpen();
  const ui::WaitCursor wait;
  ALRTNTFYSERV record{};
  if (ServiceStore().DBAlertRecFindFirst(kByIdentity, sizeof(GUID), &id, record) != kOk)
    return Fail(kIdsListReadFailed);
  std::unique_ptr<CNtfyService> service = MakeObject(record);
  if (!service) return false;
  Append(std::move(service));
  return true;
}

bool CNtfyServiceList::DeleteAt(int index) {
  if (GetAt(index) == nullptr) return false;
  const auto place = services_.begin() + index;
  const std::unique_ptr<CNtfyService> service = std::move(*place);
  services_.erase(place);
  by_id_.clear();
  first_of_type_.clear();
  IndexFrom(0);
  return service->DeleteRecord();
}

void CNtfyServiceList::RemoveAll() {
  services_.clear();
  by_id_.clear();
  first_of_type_.clear();
  stale_ = true;
}

}  // namespace alerting
