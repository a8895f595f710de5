// SPDX-License-Identifier: MIT
// The site service functions.
#include "alerting/alerting.h"
#include "alerting/api/call.h"
#include "alerting/managers/enabled_services.h"
#include "alerting/services/service_ui.h"
#include "platform/ui/modal.h"

using namespace alerting;  // NOLINT: exports speak the library's language

namespace {

constexpr std::uint32_t kClassOther = 0, kClassUser = 1, kClassDevice = 2, kClassUnknown = 3;

std::uint32_t ClassOf(const CNtfyService& service) {
  if (service.IsDeviceService()) return kClassDevice;
  return service.IsUserService() ? kClassUser : kClassOther;
}

CNtfyService* ServiceById(const GUID& id) {
  const std::optional<int> index = TheServices().FindById(id);
  return index ? TheServices().GetAt(*index) : nullptr;
}

/// Copies and answers the index of the copy, -1 when that failed.
int Copy(CNtfyService& service, const char* name) {
  const int copy_index = TheServices().GetCount();
  GUID copy{};
  if (!service.MakeCopy(name, copy) || !TheServices().AddFromStore(copy)) return -1;
  return copy_index;
}

}  // namespace

extern "C" {

std::uint32_t DomainServiceInit() { return 1; }

std::int32_t DomainServiceGetCount() {
  return CallWithList<std::int32_t>(0, [] { return TheServices().GetCount(); });
}

const ALRTNTFYSERV* DomainServiceGetInfo(std::int32_t index) {
  return CallOnService<const ALRTNTFYSERV*>(index, [](CNtfyService& service) { return &service.Common(); });
}

std::int32_t DomainServicePropertySheet(ui::Window* parent, std::int32_t index) {
  return CallOnService<std::int32_t>(index, 0, ui::kCancel,
                                     [&](CNtfyService& service) { return service.PropertySheet(parent); });
}

std::int32_t DomainServiceBackupPropertySheet(ui::Window* parent, std::int32_t index) {
  return CallOnService<std::int32_t>(index, [&](CNtfyService& service) {
    if (!service.IsModemService()) return 0;
    const auto run = ServiceUiOf(service.Type().code).backup_modem_sheet;
    return run != nullptr ? run(service, parent) : ui::kCancel;
  });
}

std::uint32_t DomainServiceIsUser(std::int32_t index) {
  return CallOnService<std::uint32_t>(index, [](CNtfyService& service) { return service.IsUserService(); });
}

std::uint32_t DomainServiceTypeFromID(std::int32_t index) {
  return CallOnService(index, kClassUnknown, kClassUnknown, ClassOf);
}

std::uint32_t DomainServiceType(GUID id) {
  return CallWithList(kClassUnknown, [&] {
    const CNtfyService* service = ServiceById(id);
    return service != nullptr ? ClassOf(*service) : kClassUnknown;
  });
}

std::uint32_t DomainServiceIsFirstOfType(std::int32_t index) {
  return CallWithList<std::uint32_t>(0, [&] { return TheServices().IsFirstOfType(index); });
}

std::uint32_t DomainServiceDeleteService(std::int32_t index, GUID manager) {
  return CallOnService<std::uint32_t>(index, [&](CNtfyService& service) {
    EnableServiceOnManager(service.Common(), manager, false);
    // The site keeps one service of each type, so that there is always one to copy.
    return TheServices().IsFirstOfType(index) || TheServices().DeleteAt(index);
  });
}

std::uint32_t DomainServiceCopyService(std::int32_t index, const char* name) {
  return CallOnService<std::uint32_t>(index, [&](CNtfyService& service) { return Copy(service, name) >= 0; });
}

std::uint32_t DomainServiceCopyServiceX(std::int32_t index, const char* name, GUID manager) {
  return CallOnService<std::uint32_t>(index, [&](CNtfyService& service) {
    const CNtfyService* copy = TheServices().GetAt(Copy(service, name));
    if (copy == nullptr) return false;
    EnableServiceOnManager(copy->Common(), manager, true);
    return true;
  });
}

std::uint32_t DomainServiceIsServer(std::int32_t index, GUID manager) {
  return CallOnService<std::uint32_t>(
      index, [&](CNtfyService& service) { return IsServiceOnManager(service.ServiceId(), manager); });
}

std::uint32_t DomainServiceServerEnable(std::int32_t index, GUID manager, std::uint32_t enable) {
  return CallOnService<std::uint32_t>(index, [&](CNtfyService& service) {
    EnableServiceOnManager(service.Common(), manager, enable != 0);
    return true;
  });
}

std::uint32_t DomainServiceServerLoadRecords() {
  return CallWithList<std::uint32_t>(0, [] {
    TheEnabledServices().Load();
    return true;
  });
}

std::uint32_t DomainServiceCachedIsServer(std::int32_t index, GUID manager) {
  return CallOnService<std::uint32_t>(index, [&](CNtfyService& service) {
    return TheEnabledServices().Contains(service.ServiceId(), manager);
  });
}

std::uint32_t DomainServiceSetBackupServer(GUID manager) {
  BackupManagerGuid() = manager;
  return 1;
}

std::uint16_t DomainServiceGetResponseType(std::int32_t index) {
  return CallOnService<std::uint16_t>(index, [](CNtfyService& service) { return service.GetResponseType(); });
}

std::uint32_t DomainServiceIsVirgin(std::int32_t index) {
  return CallOnService<std::uint32_t>(
      index, [](CNtfyService& service) { return static_cast<std::uint32_t>(service.Common().virgin); });
}

std::uint32_t DomainServiceUsesExtensionAgent(std::int32_t index) {
  return CallOnService<std::uint32_t>(index,
                                      [](CNtfyService& service) { return service.UsesExtensionAgent(); });
}

std::uint32_t DomainServiceIsModemService(std::int32_t index) {
  return CallOnService<std::uint32_t>(index, [](CNtfyService& service) { return service.IsModemService(); });
}

std::uint32_t DomainServiceHasModem(std::int32_t index) {
  return CallOnService<std::uint32_t>(index, [](CNtfyService& service) { return service.HasModem(); });
}

std::uint32_t DomainServiceHasBackupModem(std::int32_t index) {
  return CallOnService<std::uint32_t>(index, [](CNtfyService& service) { return service.HasBackupModem(); });
}

std::uint32_t DomainServiceShowBackup(std::int32_t index) { return DomainServiceHasModem(index); }

const ui::Bitmap* DomainServiceGetIcon(std::int32_t index) {
  return CallOnService<const ui::Bitmap*>(index, [](CNtfyService& service) { return service.GetIcon(); });
}

std::int32_t DomainServiceGetIconOffset(std::int32_t index) {
  return CallOnService<std::int32_t>(index, 0, -1,
                                     [](CNtfyService& service) { return service.GetIconOffset(); });
}

std::uint32_t DomainServiceInitWithDefMsg(std::int32_t index, ALERTRESPREC* response) {
  return CallOnService<std::uint32_t>(index, [&](CNtfyService& service) {
    return response != nullptr && service.InitWithDefaultMessage(*response);
  });
}

std::uint32_t DomainServiceInitWithDefMsgX(GUID id, ALERTRESPREC* response) {
  return CallWithList<std::uint32_t>(0, [&] {
    const CNtfyService* service = ServiceById(id);
    return service != nullptr && response != nullptr && service->InitWithDefaultMessage(*response);
  });
}

std::uint32_t DomainServiceReinitializeResponse(std::int32_t index, ALERTRESPREC* response) {
  return CallOnService<std::uint32_t>(index, [&](CNtfyService& service) {
    return response != nullptr && service.ReinitializeResponse(*response);
  });
}

std::uint32_t DomainServiceValidateResponse(ALERTRESPREC* response) {
  return CallWithList<std::uint32_t>(0, [&] {
    const CNtfyService* service = response != nullptr ? ServiceById(response->serviceId) : nullptr;
    return service != nullptr && service->ValidateResponse(*response);
  });
}

}  // extern "C"
