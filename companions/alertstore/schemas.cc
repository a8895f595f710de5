// SPDX-License-Identifier: MIT
#include "companions/alertstore/schemas.h"

#include <cstddef>
#include <utility>

#include "companions/alertstore/computers.h"
#include "companions/alertstore/console_users.h"
#include "companions/alertstore/selectors.h"
#include "companions/alertstore/stores.h"

namespace alertstore {
namespace {

constexpr Selector Identity(std::uint32_t number) {
  return {number, KeyKind::kIdentity, 0, sizeof(platform::GUID)};
}

constexpr Selector Guid(std::uint32_t number, std::uint32_t offset) {
  return {number, KeyKind::kGuid, offset, sizeof(platform::GUID)};
}

template <class Record>
StoreSchema Schema(std::string file, std::vector<Selector> selectors) {
  return {std::move(file), sizeof(Record), std::move(selectors)};
}

constexpr std::uint32_t kGuidPairWidth = 2 * sizeof(platform::GUID);

template <class... Records>
std::vector<StoreSchema> SchemasOf() {
  return {SchemaOf<Records>()...};
}

template <class Record>
StoreSchema SpecificSchema(std::string file) {
  return Schema<Record>(std::move(file), {Identity(kByIdentity)});
}

template <class User>
StoreSchema UserSchema(std::string file, const UserSelectors& selectors) {
  return Schema<User>(std::move(file),
                      {Identity(selectors.by_id), Guid(selectors.by_user, offsetof(User, userId))});
}

}  // namespace

template <>
const StoreSchema& SchemaOf<ALRTNTFYSERV>() {
  static const StoreSchema schema = SpecificSchema<ALRTNTFYSERV>("NtfyServDB.dat");
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALERTRESPREC>() {
  static const StoreSchema schema = SpecificSchema<ALERTRESPREC>("RespDB.dat");
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTUSRINSTSERV>() {
  static const StoreSchema schema = Schema<ALRTUSRINSTSERV>(
      "UsrInstServDB.dat", {Identity(kLinkByIdentity),
                            Guid(kLinkByUser, offsetof(ALRTUSRINSTSERV, userId)),
                            Guid(kLinkByUserRecord, offsetof(ALRTUSRINSTSERV, userRecordId)),
                            {kLinkByServiceAndUser, KeyKind::kGuidPair, offsetof(ALRTUSRINSTSERV, serviceId),
                             kGuidPairWidth, offsetof(ALRTUSRINSTSERV, userId)}});
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTMHSSERVICEREC>() {
  static const StoreSchema schema = SpecificSchema<ALRTMHSSERVICEREC>("MhsNtfyServDB.dat");
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTSNMPSERVICEREC>() {
  static const StoreSchema schema = SpecificSchema<ALRTSNMPSERVICEREC>("SnmpNtfyServDB.dat");
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTMCISERVICEREC>() {
  static const StoreSchema schema = SpecificSchema<ALRTMCISERVICEREC>("MciNtfyServDB.dat");
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTCOMPUSSERVICEREC>() {
  static const StoreSchema schema = SpecificSchema<ALRTCOMPUSSERVICEREC>("CompusNtfyServDB.dat");
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTSMTPSERVICEREC>() {
  static const StoreSchema schema = SpecificSchema<ALRTSMTPSERVICEREC>("SmtpNtfyServDB.dat");
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTMAPISERVICEREC>() {
  static const StoreSchema schema = SpecificSchema<ALRTMAPISERVICEREC>("MapiNtfyServDB.dat");
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTCCMAILSERVICEREC>() {
  static const StoreSchema schema = SpecificSchema<ALRTCCMAILSERVICEREC>("CcmailNtfyServDB.dat");
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTWAVESERVICEREC>() {
  static const StoreSchema schema = SpecificSchema<ALRTWAVESERVICEREC>("WaveNtfyServDB.dat");
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTTTSSERVICEREC>() {
  static const StoreSchema schema = SpecificSchema<ALRTTTSSERVICEREC>("TtsNtfyServDB.dat");
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTAPAGESERVICEREC>() {
  static const StoreSchema schema = SpecificSchema<ALRTAPAGESERVICEREC>("ApageNtfyServDB.dat");
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTNPAGESERVICEREC>() {
  static const StoreSchema schema = SpecificSchema<ALRTNPAGESERVICEREC>("NpageNtfyServDB.dat");
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTGENPORTSERVICEREC>() {
  static const StoreSchema schema = SpecificSchema<ALRTGENPORTSERVICEREC>("GenPortNtfyServDB.dat");
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTUSR_MHSSERVICEREC>() {
  static const StoreSchema schema =
      UserSchema<ALRTUSR_MHSSERVICEREC>("UsrMhsDB.dat", CAlertUSR_MHSDB::kSelectors);
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTUSR_MCISERVICEREC>() {
  static const StoreSchema schema =
      UserSchema<ALRTUSR_MCISERVICEREC>("UsrMciDB.dat", CAlertUSR_MCIDB::kSelectors);
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTUSR_COMPUSERVICEREC>() {
  static const StoreSchema schema =
      UserSchema<ALRTUSR_COMPUSERVICEREC>("UsrCompuDB.dat", CAlertUSR_COMPUDB::kSelectors);
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTUSR_SMTPSERVICEREC>() {
  static const StoreSchema schema =
      UserSchema<ALRTUSR_SMTPSERVICEREC>("UsrSmtpDB.dat", CAlertUSR_SMTPDB::kSelectors);
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTUSR_MAPISERVICEREC>() {
  static const StoreSchema schema =
      UserSchema<ALRTUSR_MAPISERVICEREC>("UsrMapiDB.dat", CAlertUSR_MAPIDB::kSelectors);
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTUSR_CCMAILSERVICEREC>() {
  static const StoreSchema schema =
      UserSchema<ALRTUSR_CCMAILSERVICEREC>("UsrCcmailDB.dat", CAlertUSR_CCMAILDB::kSelectors);
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTUSR_APAGESERVICEREC>() {
  static const StoreSchema schema =
      UserSchema<ALRTUSR_APAGESERVICEREC>("UsrApageDB.dat", CAlertUSR_APAGEDB::kSelectors);
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTUSR_NPAGESERVICEREC>() {
  static const StoreSchema schema =
      UserSchema<ALRTUSR_NPAGESERVICEREC>("UsrNpageDB.dat", CAlertUSR_NPAGEDB::kSelectors);
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTUSR_SNMPSERVICEREC>() {
  static const StoreSchema schema =
      Schema<ALRTUSR_SNMPSERVICEREC>("UsrSnmpDB.dat", {Identity(kSnmpManagerByIdentity)});
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTSERV_MODEM>() {
  static const StoreSchema schema = Schema<ALRTSERV_MODEM>(
      "ModemDB.dat",
      {Identity(kModemByIdentity),
       {kModemByName, KeyKind::kUniqueText, offsetof(ALRTSERV_MODEM, name), sizeof(ALRTSERV_MODEM::name)}});
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTMODEM_LOCATION>() {
  static const StoreSchema schema = Schema<ALRTMODEM_LOCATION>(
      "ModemLocationDB.dat", {Identity(kLocationByIdentity),
                              {kLocationByName, KeyKind::kUniqueText, offsetof(ALRTMODEM_LOCATION, name),
                               sizeof(ALRTMODEM_LOCATION::name)}});
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTAPAGE_SERVICE_PROVIDER_REC>() {
  static const StoreSchema schema =
      Schema<ALRTAPAGE_SERVICE_PROVIDER_REC>("ApageProviderDB.dat", {Identity(kProviderByIdentity)});
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRT_SRV_CFGREC>() {
  static const StoreSchema schema = Schema<ALRT_SRV_CFGREC>(
      "SrvCfgDB.dat", {Identity(kByIdentity),
                       {kManagerByName, KeyKind::kText, offsetof(ALRT_SRV_CFGREC, managerName),
                        sizeof(ALRT_SRV_CFGREC::managerName)}});
  return schema;
}

template <>
const StoreSchema& SchemaOf<ALRTSERV_INST_NTFY_SERVREC>() {
  static const StoreSchema schema = Schema<ALRTSERV_INST_NTFY_SERVREC>(
      "InstNtfyServDB.dat",
      {Identity(kEnabledServiceByIdentity),
       Guid(kEnabledServiceByService, offsetof(ALRTSERV_INST_NTFY_SERVREC, serviceGuid)),
       Guid(kEnabledServiceByManager, offsetof(ALRTSERV_INST_NTFY_SERVREC, managerGuid))});
  return schema;
}

std::vector<StoreSchema> SiteSchemas() {
  std::vector<StoreSchema> schemas =
      SchemasOf<ALRTNTFYSERV, ALERTRESPREC, ALRTUSRINSTSERV, ALRTMHSSERVICEREC, ALRTSNMPSERVICEREC,
                ALRTMCISERVICEREC, ALRTCOMPUSSERVICEREC, ALRTSMTPSERVICEREC, ALRTMAPISERVICEREC,
                ALRTCCMAILSERVICEREC, ALRTWAVESERVICEREC, ALRTTTSSERVICEREC, ALRTAPAGESERVICEREC,
                ALRTNPAGESERVICEREC, ALRTGENPORTSERVICEREC, ALRTUSR_MHSSERVICEREC, ALRTUSR_MCISERVICEREC,
                ALRTUSR_COMPUSERVICEREC, ALRTUSR_SMTPSERVICEREC, ALRTUSR_MAPISERVICEREC,
                ALRTUSR_CCMAILSERVICEREC, ALRTUSR_APAGESERVICEREC, ALRTUSR_NPAGESERVICEREC,
                ALRTUSR_SNMPSERVICEREC, ALRTSERV_MODEM, ALRTMODEM_LOCATION, ALRTAPAGE_SERVICE_PROVIDER_REC,
                ALRT_SRV_CFGREC, ALRTSERV_INST_NTFY_SERVREC>();
  schemas.push_back(CAlertSERV_MODEMDB(kModemTypeFile).Schema());
  schemas.push_back(ConsoleUserSchema());
  schemas.push_back(ComputerSchema());
  return schemas;
}

}  // namespace alertstore
