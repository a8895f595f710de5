// SPDX-License-Identifier: MIT
#include "alerting/services/ntfy_service.h"

#include <cstring>
#include <map>
#include <memory>

#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"
#include "alerting/services/service_ui.h"
#include "companions/alertrecords/test_response.h"
#include "platform/ui/image.h"
#include "platform/ui/modal.h"

namespace alerting {

CNtfyService::CNtfyService(const GUID& id, TypeCode type)
    : service_id_(id),
      test_response_id_(alertrecords::TestResponseId(RecordTypeOf(type))),
      code_(type),
      own_type_(type) {}

bool CNtfyService::Load() {
  EnsureStoresOpen();
  ALRTNTFYSERV read{};
  read.serviceId = service_id_;
  common_.serviceId = service_id_;
  if (ServiceStore().DBAlertRecRetrieve(service_id_, read) != kOk) return Fail(kIdsCommonReadFailed);
  common_ = read;
  LoadSpecificRecord(ServiceStore());
  return true;
}

bool CNtfyService::DeleteRecord() {
  EnsureStoresOpen();
  if (ServiceStore().DBAlertRecDelete(service_id_) != kOk) return Fail(kIdsCommonReadFailed);
  return true;
}

bool CNtfyService::MakeCopy(const char* new_name, GUID& new_id) {
  ALRTNTFYSERV copy = common_;
  copy.serviceId = kNullGuid;
  copy.specificRecordId = kNullGuid;
  copy.name.Assign(new_name != nullptr ? new_name : "");
  copy.enabled = 1;
  copy.virgin = 1;  // a copy starts as never saved
  EnsureStoresOpen();
  return AddCopy(ServiceStore(), copy, new_id);
}

void CNtfyService::RetargetResponse(ALERTRESPREC& response) const {
  response.serviceRecordType = common_.recordType;
  response.responseType = GetResponseType();
  response.serviceId = service_id_;
  response.serviceName.Assign(common_.name.View());
  response.message.Assign("");
  response.subject.Assign("");
  std::memset(response.messageKeywords, 0, sizeof(response.messageKeywords));
  std::memset(response.subjectKeywords, 0, sizeof(response.subjectKeywords));
}

bool CNtfyService::ReinitializeResponse(ALERTRESPREC& response) const {
  if (response.serviceRecordType == common_.recordType) return false;
  RetargetResponse(response);
  return true;
}

bool CNtfyService::ValidateResponse(const ALERTRESPREC& response) const {
  return response.message.Empty() ? Fail(kIdsNoMessageInResponse) : true;
}

const ui::Bitmap* CNtfyService::GetIcon() const {
  if (Type().icon == nullptr) return nullptr;
  static std::map<std::string, std::unique_ptr<const ui::Bitmap>> loaded;
  std::unique_ptr<const ui::Bitmap>& icon = loaded[Type().icon];
  if (!icon) {
    std::vector<ui::Bitmap> pictures = ui::DecodeIco(TheModule().Resource(Type().icon));
    if (!pictures.empty()) icon = std::make_unique<const ui::Bitmap>(std::move(pictures.front()));
  }
  return icon.get();
}

int CNtfyService::PropertySheet(ui::Window* parent) {
  const auto run = ServiceUiOf(own_type_).property_sheet;
  return run != nullptr ? run(*this, parent) : ui::kCancel;
}

CAlertPage* CNtfyService::CreateResponsePanel(int, ALERTRESPREC* response, std::uint32_t wizard_buttons) {
  const auto create = ServiceUiOf(own_type_).response_panel;
  return create != nullptr ? create(*this, response, wizard_buttons) : nullptr;
}

CAlertPage* CNtfyService::CreateAddUserPanel(int, const GUID& user, std::uint32_t wizard_buttons) {
  const auto create = ServiceUiOf(own_type_).user_panel;
  return create != nullptr ? create(*this, user, wizard_buttons) : nullptr;
}

bool CNtfyService::SelectUser(ui::Window* parent, std::string& name, GUID& user) {
  const auto select = ServiceUiOf(own_type_).select_user;
  return select != nullptr && select(*this, parent, name, user);
}

bool CNtfyService::TestDialog(const GUID& user, ui::Window* parent) {
  const auto test = ServiceUiOf(own_type_).user_test;
  return test != nullptr && test(*this, user, parent);
}

bool CNtfyService::SendTestAlert(const GUID& target, const char* message, const char* subject_or_file,
                                 std::uint16_t priority, ui::Window* parent) {
  const auto send = ServiceUiOf(own_type_).send_test;
  return send != nullptr && send(*this, target, message, subject_or_file, priority, parent);
}

}  // namespace alerting
