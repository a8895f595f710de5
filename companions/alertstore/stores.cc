// SPDX-License-Identifier: MIT
#include "companions/alertstore/stores.h"

#include <utility>

namespace alertstore {
namespace {

StoreSchema ModemSchema(std::string file_name) {
  StoreSchema schema = SchemaOf<ALRTSERV_MODEM>();
  schema.file = std::move(file_name);
  return schema;
}

}  // namespace

CAlertNtfyServDB::CAlertNtfyServDB()
    : specific_(std::make_unique<CAlertMHSNtfyServDB>(), std::make_unique<CAlertSNMPNtfyServDB>(),
                std::make_unique<CAlertMCINtfyServDB>(), std::make_unique<CAlertCOMPUSNtfyServDB>(),
                std::make_unique<CAlertSMTPNtfyServDB>(), std::make_unique<CAlertMAPINtfyServDB>(),
                std::make_unique<CAlertCCMAILNtfyServDB>(), std::make_unique<CAlertWAVENtfyServDB>(),
                std::make_unique<CAlertTTSNtfyServDB>(), std::make_unique<CAlertAPAGENtfyServDB>(),
                std::make_unique<CAlertNPAGENtfyServDB>(), std::make_unique<CAlertGENPORTNtfyServDB>()) {}

CAlertNtfyServDB::~CAlertNtfyServDB() = default;

Status CAlertNtfyServDB::DBOpen() {
  Status status = RecordStore::DBOpen();
  const auto open = [&status](auto& store) {
    if (status == kOk && store != nullptr) status = store->DBOpen();
  };
  std::apply([&open](auto&... stores) { (open(stores), ...); }, specific_);
  return status;
}

CAlertSERV_MODEMDB::CAlertSERV_MODEMDB(std::string file_name)
    : RecordStore(ModemSchema(std::move(file_name))) {}

}  // namespace alertstore
