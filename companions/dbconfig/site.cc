// SPDX-License-Identifier: MIT
#include "companions/dbconfig/site.h"

#include <memory>
#include <vector>

#include "companions/alertstore/engine.h"
#include "companions/alertstore/stores.h"
#include "companions/dbconfig/service_types.h"
#include "companions/dbconfig/store_reader.h"

namespace dbconfig {
namespace {

using Readers = std::vector<std::unique_ptr<StoreReader>>;

void AddCommonReaders(Site& site, Readers& readers) {
  readers.push_back(MakeReader<alertstore::CAlertNtfyServDB>(site.services));
  readers.push_back(MakeReader<alertstore::CAlertRespDB>(site.responses));
  readers.push_back(MakeReader<alertstore::CAlertUsrInstServDB>(site.links));
  readers.push_back(MakeReader<alertstore::CAlert_SRV_CFGDB>(site.managers));
  readers.push_back(MakeReader<alertstore::CAlertSERV_INST_NTFY_SERVDB>(site.enabled_services));
  readers.push_back(MakeReader<alertstore::CAlertUSR_SNMPDB>(site.snmp_managers));
  readers.push_back(MakeReader<alertstore::CAlertSERV_MODEMDB>(site.modems));
  readers.push_back(MakeReader<alertstore::CAlertMODEM_LOCATIONDB>(site.locations));
  readers.push_back(MakeReader<alertstore::CAlertAPAGE_SERVICE_PROVIDERDB>(site.providers));
}

void AddTypeReaders(Site& site, Readers& readers) {
  for (const ServiceType& type : ServiceTypes()) {
    if (type.read_specific) readers.push_back(type.read_specific(site.specific[type.record_type]));
    if (type.read_users) readers.push_back(type.read_users(site.users[type.record_type]));
  }
}

alertstore::Status ForAll(const Readers& readers, alertstore::Status (StoreReader::*operation)()) {
  for (const auto& reader : readers) {
    const alertstore::Status status = (reader.get()->*operation)();
    if (status != alertstore::kOk) return status;
  }
  return alertstore::kOk;
}

}  // namespace

alertstore::Status ReadSite(Site& site) {
  Readers readers;
  AddCommonReaders(site, readers);
  AddTypeReaders(site, readers);
  const alertstore::Status opened = ForAll(readers, &StoreReader::Open);
  if (opened != alertstore::kOk) return opened;

  const auto engine = alertstore::CurrentEngine();
  const alertstore::ReadScope one_moment(*engine);
  if (one_moment.Result() != alertstore::kOk) return one_moment.Result();
  return ForAll(readers, &StoreReader::ReadAll);
}

}  // namespace dbconfig
