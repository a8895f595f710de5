// SPDX-License-Identifier: MIT
#include "console/site/laboratory_plan.h"

#include <algorithm>
#include <cstring>
#include <map>

#include "companions/alertstore/stores.h"
#include "companions/dbconfig/service_types.h"
#include "console/site/failure.h"
#include "console/site/laboratory_stores.h"
#include "console/site/walk.h"
#include "platform/base/host_name.h"
#include "platform/base/utf8.h"

namespace site {
namespace {

using namespace alertstore;  // NOLINT: records of many kinds
using platform::GUID;

constexpr std::uint32_t kInternetMail = 5, kAlphanumericPager = 11, kNumericPager = 12, kGenericPort = 13;
constexpr char kAddress[] = "127.0.0.1";
/// Any number is answered in the laboratory.
constexpr char kAnyNumber[] = "555-0100";
constexpr std::uint32_t kModemPort = 1, kPrinterPort = 4;  // as laboratory_settings.cc lays them
constexpr std::uint32_t kDials = 7, kDirectPort = 16;      // capabilities

template <class Record>
std::string BytesOf(const Record& record) {
  return {reinterpret_cast<const char*>(&record), sizeof record};
}

/// Shows all records of a store.
template <class Store, class Visit>
void ForAll(Visit&& visit) {
  Store store;
  const Status status = WalkAll(store, [&](const auto& record) {
    visit(record);
    return kOk;
  });
  if (status != kOk) throw StoreFailure("read the stores", status);
}

/// The choice of a modem, with what a service copies of it.
template <class Record>
void ChooseModem(const ALRTSERV_MODEM& modem, Record& record) {
  record.modemId = modem.guid;
  record.modemName.Assign(modem.name.View());
  record.initString.Assign(modem.initString.View());
  record.dialSuffix.Assign(modem.dialSuffix.View());
  record.capabilities = modem.capabilities;
  if constexpr (requires { record.alphaInitString; })
    record.alphaInitString.Assign(modem.alphaInitString.View());
  else
    record.dialPrefix.Assign(modem.dialPrefix.View());
}

class Planner {
 public:
  LaboratoryPlan Make();

 private:
  void FindThisManager();
  void FindServices();
  bool IsDeliveredHere(const ALRTNTFYSERV& service) const;
  void ReceiveTraps();
  ALRTSERV_MODEM AddModem(std::string name, std::uint32_t port, std::uint32_t capabilities);
  template <class Store, class Edit>
  void Point(std::uint32_t type, const std::string& what, Edit edit);
  void Note(const std::string& what, const dbconfig::ServiceType& type, const std::string& before,
            const std::string& during);

  ALRT_SRV_CFGREC manager_{};
  std::map<std::uint32_t, ALRTNTFYSERV> first_;  ///< by record type
  LaboratoryPlan plan_;
};

void Planner::FindThisManager() {
  const std::string host = platform::HostName();
  ForAll<CAlert_SRV_CFGDB>([&](const ALRT_SRV_CFGREC& manager) {
    if (platform::EqualIgnoringCase(manager.managerName.View(), host)) manager_ = manager;
  });
  if (manager_.guid.IsNull())
    throw Failure(kInvalid, "this machine (" + host +
                                ") is no alert manager of the site, so no test would come to its laboratory: "
                                "add it under Alert Managers and have it deliver the services");
}

bool Planner::IsDeliveredHere(const ALRTNTFYSERV& service) const {
  bool here = false;
  ForAll<CAlertSERV_INST_NTFY_SERVDB>([&](const ALRTSERV_INST_NTFY_SERVREC& entry) {
    if (entry.serviceGuid == service.serviceId && entry.managerGuid == manager_.guid && entry.isBackup == 0)
      here = true;
  });
  return here;
}

void Planner::FindServices() {
  ForAll<CAlertNtfyServDB>(
      [&](const ALRTNTFYSERV& service) { first_.emplace(std::uint32_t{service.recordType}, service); });
  for (const std::uint32_t type : {kInternetMail, kAlphanumericPager, kNumericPager, kGenericPort}) {
    const auto found = first_.find(type);
    if (found == first_.end() || IsDeliveredHere(found->second)) continue;
    plan_.left_out.push_back('"' + std::string(found->second.name.View()) + '"');
    first_.erase(found);
  }
}

/// Notes the fields that differ, which belong together.
void Planner::Note(const std::string& what, const dbconfig::ServiceType& type, const std::string& before,
                   const std::string& during) {
  ChangedRecord record{what, type.key, {}, {}};
  std::memcpy(&record.id, before.data(), sizeof record.id);
  for (const dbconfig::Fields fields : {type.settings, type.modem})
    for (const dbconfig::Field& field : fields) {
      ChangedField changed{field.name, before.substr(field.offset, field.width),
                           during.substr(field.offset, field.width)};
      if (changed.before != changed.during) record.fields.push_back(std::move(changed));
    }
  if (record.fields.empty()) return;
  const std::string& old = record.fields.front().before;
  if (std::ranges::any_of(old, [](char c) { return c != 0; })) plan_.replaced.push_back(what);
  plan_.changes.changed.push_back(std::move(record));
}

template <class Store, class Edit>
void Planner::Point(std::uint32_t type, const std::string& what, Edit edit) {
  const auto found = first_.find(type);
  if (found == first_.end()) return;
  const ALRTNTFYSERV& service = found->second;
  Store store;
  typename Store::RecordType record{};
  record.guid = service.specificRecordId;
  Status status = store.DBOpen();
  if (status == kOk) status = store.DBAlertRecRetrieve(record.guid, record);
  if (status != kOk) throw StoreFailure("read \"" + std::string(service.name.View()) + '"', status);
  const std::string before = BytesOf(record);
  edit(record);
  Note(what + " of \"" + std::string(service.name.View()) + '"', *dbconfig::FindServiceType(type), before,
       BytesOf(record));
}

void Planner::ReceiveTraps() {
  bool known = false;
  ForAll<CAlertUSR_SNMPDB>([&](const ALRTUSR_SNMPSERVICEREC& manager) {
    known |= manager.address.View() == kAddress && manager.enabled == 1;
  });
  if (known) return;
  ALRTUSR_SNMPSERVICEREC manager{};
  manager.guid = GUID::Generate();
  manager.computer.Assign("Laboratory");
  manager.address.Assign(kAddress);
  manager.community.Assign("public");
  manager.comment.Assign("Pretended; it goes with the laboratory.");
  manager.enabled = 1;
  plan_.changes.added.push_back({"the SNMP manager \"Laboratory\"", "snmp-managers", BytesOf(manager)});
}

/// Names of modems are unique, and a person may have kept an earlier one.
ALRTSERV_MODEM Planner::AddModem(std::string name, std::uint32_t port, std::uint32_t capabilities) {
  std::vector<std::string> taken;
  ForAll<CAlertSERV_MODEMDB>([&](const auto& modem) { taken.emplace_back(modem.name.View()); });
  const auto is_taken = [&](const std::string& wanted) {
    return std::ranges::any_of(
        taken, [&](const std::string& each) { return platform::EqualIgnoringCase(each, wanted); });
  };
  for (int number = 2; is_taken(name); ++number)
    name = name.substr(0, name.find(" (")) + " (" + std::to_string(number) + ")";
  ALRTSERV_MODEM modem{};
  ForAll<CAlertMODEM_LOCATIONDB>([&](const ALRTMODEM_LOCATION& location) {
    if (modem.locationGuid.IsNull()) modem.locationGuid = location.guid;
  });
  modem.guid = GUID::Generate();
  modem.managerGuid = manager_.guid;
  modem.managerName.Assign(manager_.managerName.View());
  modem.name.Assign(name);
  modem.comment.Assign("Pretended; it goes with the laboratory.");
  modem.enabled = 1;
  modem.baudRate = 9600;
  modem.comPort = port;
  modem.capabilities = capabilities;
  if (capabilities == kDials) {
    modem.initString.Assign("AT&F&C1&D2");
    modem.alphaInitString.Assign("AT&F&C1&D2");
    modem.dialPrefix.Assign("ATDT");
    modem.hangupString.Assign("ATH0");
    modem.escapeString.Assign("+++");
  }
  plan_.changes.added.push_back({"the modem \"" + name + '"', "modems", BytesOf(modem)});
  return modem;
}

LaboratoryPlan Planner::Make() {
  FindThisManager();
  FindServices();
  ReceiveTraps();
  Point<CAlertSMTPNtfyServDB>(kInternetMail, "the mail server",
                              [](auto& record) { record.smtpServer.Assign(kAddress); });
  if (first_.contains(kAlphanumericPager) || first_.contains(kNumericPager)) {
    const ALRTSERV_MODEM modem = AddModem("Laboratory modem", kModemPort, kDials);
    const auto choose = [&](auto& record) { ChooseModem(modem, record); };
    Point<CAlertAPAGENtfyServDB>(kAlphanumericPager, "the modem", choose);
    Point<CAlertNPAGENtfyServDB>(kNumericPager, "the modem", choose);
  }
  Point<CAlertAPAGENtfyServDB>(kAlphanumericPager, "the provider's number", [](auto& record) {
    if (record.providerPhone.Empty()) record.providerPhone.Assign(kAnyNumber);
  });
  if (first_.contains(kGenericPort)) {
    const ALRTSERV_MODEM printer = AddModem("Laboratory printer", kPrinterPort, kDirectPort);
    Point<CAlertGENPORTNtfyServDB>(kGenericPort, "the modem",
                                   [&](auto& record) { ChooseModem(printer, record); });
  }
  return std::move(plan_);
}

}  // namespace

LaboratoryPlan PlanLaboratory() { return Planner().Make(); }

}  // namespace site
