// SPDX-License-Identifier: MIT
#include "alerting/services/file_base.h"

#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"
#include "alerting/services/specific_record.h"

namespace alerting {
namespace {

bool KeepsFileName(std::uint32_t record_type) {
  return record_type == RecordTypeOf(kTypeWave) || record_type == RecordTypeOf(kTypeProgram);
}

}  // namespace

bool CNtfyServiceFileBase::ReinitializeResponse(ALERTRESPREC& response) const {
  if (response.serviceRecordType == Common().recordType) return false;
  const auto file = response.subject;
  RetargetResponse(response);
  if (!KeepsFileName(Common().recordType)) return true;
  response.subject = file;
  ShowMessage(kIdsFileLeftUnchanged);
  return true;
}

bool CNtfyServiceFileBase::ValidateResponse(const ALERTRESPREC& response) const {
  return response.subject.Empty() ? Fail(NoFileMessageId()) : true;
}

bool CNtfyServiceLaunchBase::ReloadRecords() {
  EnsureStoresOpen();
  ALRTNTFYSERV read{};
  if (!ReadCommonRecord(ServiceId(), read)) return false;
  const std::uint32_t code = ServiceTypeFromRecordType(read.recordType);
  if (code != kTypeProgram && code != kTypeScript) return Fail(kIdsUnexpectedType);
  Common() = read;
  saved_common_ = read;
  return true;
}

bool CNtfyServiceLaunchBase::SaveRecords() {
  EnsureStoresOpen();
  return SaveCommonRecord(Common(), saved_common_);
}

bool CNtfyServiceLaunchBase::AddCopy(CAlertNtfyServDB& store, ALRTNTFYSERV& common, GUID& new_id) {
  EnsureStoresOpen();
  new_id = kNullGuid;
  return store.DBAlertRecAdd(common, new_id) == kOk ? true : Fail(kIdsAddFailed);
}

}  // namespace alerting
