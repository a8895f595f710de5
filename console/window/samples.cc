// SPDX-License-Identifier: MIT
#include "console/window/samples.h"

#include <stdlib.h>

#include <filesystem>

#include "companions/alertrecords/user_entry.h"
#include "companions/alertstore/backup.h"
#include "companions/alertstore/console_users.h"
#include "companions/alertstore/problem.h"
#include "companions/alertstore/stores.h"
#include "console/site/responses.h"
#include "console/window/library.h"

namespace alertconsole {
namespace {

using namespace alertstore;  // NOLINT: records of many kinds are filled here

constexpr char kUserName[] = "Night Operator";

void Require(Status status) {
  if (status != kOk) throw StartFailure("The sample site cannot be made: " + ProblemText(status) + ".");
}

template <class Store>
bool FindFirst(Store& store, typename Store::RecordType& record) {
  Require(store.DBOpen());
  return store.DBAlertRecFindFirst(store.Schema().selectors.front().number, 0, nullptr, record) == kOk;
}

/// Adds a record to a store that has none.
template <class Store, class Fill>
typename Store::RecordType AddFirst(Fill fill) {
  Store store;
  typename Store::RecordType record{};
  if (FindFirst(store, record)) return record;
  platform::GUID id{};
  fill(record);
  Require(store.DBAlertRecAdd(record, id));
  return record;
}

/// Changes the first service of a type by its specific record.
template <class Store, class Fill>
void FillFirst(Fill fill) {
  Store store;
  typename Store::RecordType record{};
  if (!FindFirst(store, record)) return;
  fill(record);
  Require(store.DBAlertRecUpdate(record));
}

ALRTSERV_MODEM AddModem() {
  CAlert_SRV_CFGDB managers;
  CAlertMODEM_LOCATIONDB locations;
  CAlertSERV_MODEMDB types(kModemTypeFile);
  ALRT_SRV_CFGREC manager{};
  ALRTMODEM_LOCATION location{};
  ALRTSERV_MODEM type{};
  FindFirst(managers, manager);
  FindFirst(locations, location);
  FindFirst(types, type);
  return AddFirst<CAlertSERV_MODEMDB>([&](ALRTSERV_MODEM& modem) {
    modem = type;
    modem.guid = platform::kNullGuid;
    modem.name.Assign("Office modem");
    modem.managerGuid = manager.guid;
    modem.managerName.Assign(manager.managerName.View());
    modem.locationGuid = location.guid;
    modem.modemTypeGuid = type.guid;
  });
}

/// The services that dial out show the modem that they use.
template <class Record>
void UseModem(const ALRTSERV_MODEM& modem, Record& record) {
  record.modemId = modem.guid;
  record.modemName.Assign(modem.name.View());
  record.baudRate = modem.baudRate;
  record.dataBits = 8;
}

void AddSnmpManager() {
  AddFirst<CAlertUSR_SNMPDB>([](ALRTUSR_SNMPSERVICEREC& manager) {
    manager.computer.Assign("OPERATIONS");
    manager.address.Assign("192.0.2.25");
    manager.community.Assign("public");
    manager.comment.Assign("Console in the operations room");
    manager.enabled = 1;
  });
}

/// Has a user reached through the first service of a type.
template <class Record>
void AddEntry(const platform::GUID& user, std::uint32_t record_type, std::string_view address) {
  CAlertNtfyServDB services;
  CAlertUsrInstServDB links;
  ALRTNTFYSERV service{};
  if (!FindFirst(services, service)) return;
  while (service.recordType != record_type)
    if (services.DBAlertRecFindNext(service) != kOk) return;
  platform::GUID link_id{}, record_id{};
  Record record{};
  ALRTUSRINSTSERV link{};
  alertrecords::FillUserRecord(user, kUserName, address, 1, record);
  alertrecords::FillUserLink(user, service.serviceId, service.name.View(), link);
  link.recordType = record_type;
  link.userEnabled = 1;
  Require(links.DBOpen());
  Require(links.DBAlertRecAdd(link, link_id, record, record_id));
}

void AddUser() {
  constexpr std::uint32_t kInternetMail = 5, kMhsMail = 1, kAlphanumericPager = 11;
  const auto user = platform::GUID::Generate();
  Require(AddConsoleUser(user, kUserName));
  AddEntry<ALRTUSR_SMTPSERVICEREC>(user, kInternetMail, "night@example.org");
  AddEntry<ALRTUSR_MHSSERVICEREC>(user, kMhsMail, "night@post");
  AddEntry<ALRTUSR_APAGESERVICEREC>(user, kAlphanumericPager, "5550177");
}

template <class Record>
void LogIn(Record& record) {
  record.loginId.Assign("alerts");
  record.password.Assign("example");
}

/// A response that alerts the first user who has an entry.
void AddMailResponse() {
  CAlertUsrInstServDB links;
  ALRTUSRINSTSERV link{};
  if (!FindFirst(links, link)) return;
  ALERTRESPREC response{};
  response.responseType = 1;
  response.serviceRecordType = link.recordType;
  response.serviceId = link.serviceId;
  response.serviceName.Assign(link.serviceName.View());
  response.userId = link.userId;
  response.userName.Assign(kUserName);
  response.subject.Assign("The file server is down");
  response.message.Assign("Restart it, then tell the day shift.");
  Require(site::AddResponse(response));
}

void FillMail(const ALRTSERV_MODEM& modem) {
  FillFirst<CAlertMHSNtfyServDB>([](auto& record) {
    LogIn(record);
    record.mhsDirectory.Assign("\\\\MAIL\\POST\\MHS");
  });
  FillFirst<CAlertSMTPNtfyServDB>([](auto& record) { record.smtpServer.Assign("mail.example.org"); });
  FillFirst<CAlertMAPINtfyServDB>([](auto& record) { LogIn(record); });
  FillFirst<CAlertCCMAILNtfyServDB>([](auto& record) { LogIn(record); });
  const auto dial = [&](auto& record) {
    LogIn(record);
    record.phoneNumber.Assign("555-0100");
    UseModem(modem, record);
  };
  FillFirst<CAlertMCINtfyServDB>(dial);
  FillFirst<CAlertCOMPUSNtfyServDB>(dial);
}

void FillPagers(const ALRTSERV_MODEM& modem) {
  FillFirst<CAlertAPAGENtfyServDB>([&](auto& record) {
    record.providerCompany.Assign("Example Paging");
    record.providerLocation.Assign("North");
    record.providerPhone.Assign("555-0123");
    record.maxTextLength = 240;
    UseModem(modem, record);
  });
  FillFirst<CAlertNPAGENtfyServDB>([&](auto& record) {
    record.dialDelay = 5;
    UseModem(modem, record);
  });
  FillFirst<CAlertGENPORTNtfyServDB>([&](auto& record) { UseModem(modem, record); });
}

}  // namespace

SampleSite::SampleSite() : directory_(std::filesystem::temp_directory_path() / "alerting-samples-XXXXXX") {
  if (mkdtemp(directory_.data()) == nullptr)
    throw StartFailure("The directory " + directory_ + " cannot be made.");
  CopySite();
  const ALRTSERV_MODEM modem = AddModem();
  AddSnmpManager();
  AddUser();
  AddMailResponse();
  FillMail(modem);
  FillPagers(modem);
}

SampleSite::~SampleSite() {
  std::error_code ignored;
  std::filesystem::remove_all(directory_, ignored);
}

void SampleSite::CopySite() {
  const std::string copy = directory_ + "/site.db";
  Copied copied;
  Require(BackUp(copy, copied));
  setenv("ALERTING_DATA", directory_.c_str(), 1);
  Require(Restore(copy, copied));
}

}  // namespace alertconsole
