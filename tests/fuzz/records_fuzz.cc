// SPDX-License-Identifier: MIT
// A store's file may have been written by other consoles, restored or damaged, and a test's record is whatever its console
// had. The first byte of an input chooses the kind of record, the others are its bytes; zeros stand for what is missing.
#include <array>
#include <cstdlib>
#include <cstring>

#include "alerting/services/default_message.h"
#include "alerting/services/general_fields.h"
#include "companions/alertrecords/user_entry.h"
#include "companions/dbconfig/document.h"
#include "companions/dbconfig/keywords.h"
#include "companions/dbconfig/service_types.h"
#include "server/configuration.h"
#include "server/keywords.h"
#include "server/plain_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using namespace alertstore;  // NOLINT: the tables name all records
using dbconfig::Site;
using platform::GUID;

template <class Record>
Record RecordOf(std::string_view bytes) {
  Record record{};
  std::memcpy(static_cast<void*>(&record), bytes.data(), std::min(bytes.size(), sizeof record));
  return record;
}

template <class Record>
std::string BytesOf(const Record& record) {
  return {reinterpret_cast<const char*>(&record), sizeof record};
}

/// No record has five thousand bytes, and none takes more than six in the document.
constexpr std::size_t kLongestDocument = 64 * 1024;

/// What a console writes for alert managers can be read there, whatever the records hold.
alertserver::Configuration AsAlertManagersSee(const Site& site) {
  const std::string document = WriteDocument(site);
  if (document.size() > kLongestDocument) std::abort();
  std::string problem;
  auto configuration = alertserver::ParseConfiguration(document, problem);
  if (!configuration) std::abort();
  return *configuration;
}

/// Nothing else becomes of a text on the way to the server, where its bytes are a text.
void RequireSame(std::string_view stored, std::string_view seen) {
  if (alertserver::ValidUtf8(stored) == stored && seen != stored) std::abort();
}

void UseService(std::string_view bytes) {
  Site site;
  site.services = {RecordOf<ALRTNTFYSERV>(bytes)};
  const ALRTNTFYSERV& record = site.services.front();
  const auto seen = AsAlertManagersSee(site).services;
  if (seen.size() != (dbconfig::FindServiceType(record.recordType) != nullptr ? 1 : 0)) std::abort();
  if (seen.empty()) return;
  RequireSame(record.name.View(), seen.front().name);
  if (seen.front().enabled != (record.enabled != 0) || seen.front().id != record.serviceId) std::abort();
}

/// Texts as the stores have them against those that the server reads by a table of its own.
void UseResponse(std::string_view bytes) {
  Site site;
  site.responses = {RecordOf<ALERTRESPREC>(bytes)};
  AsAlertManagersSee(site);
  const ALERTRESPREC& record = site.responses.front();
  const auto seen = alertserver::DecodeResponse(BytesOf(record));
  if (!seen || seen->user != record.userId || seen->service != record.serviceId) std::abort();
  if (seen->service_type != record.serviceRecordType || seen->priority != record.priority) std::abort();
  if (seen->user_name != alertserver::ValidUtf8(record.userName.View())) std::abort();
  if (seen->message.text != alertserver::ValidUtf8(record.message.View())) std::abort();
  if (seen->subject.text != alertserver::ValidUtf8(record.subject.View())) std::abort();
}

template <dbconfig::Records Site::*kList, class Record>
void UseDevice(std::string_view bytes) {
  Site site;
  (site.*kList).push_back(BytesOf(RecordOf<Record>(bytes)));
  const auto seen = AsAlertManagersSee(site);
  if (seen.snmpManagers.size() != site.snmp_managers.size()) std::abort();
}

void UseDelivery(std::string_view bytes) {
  Site site;
  site.managers = {RecordOf<ALRT_SRV_CFGREC>(bytes)};
  site.enabled_services = {RecordOf<ALRTSERV_INST_NTFY_SERVREC>(bytes)};
  site.enabled_services.front().managerGuid = site.managers.front().guid;
  const auto seen = AsAlertManagersSee(site).deliveries;
  if (seen.size() != 1 || seen.front().service != site.enabled_services.front().serviceGuid) std::abort();
  RequireSame(site.managers.front().managerName.View(), seen.front().manager);
}

/// A service of that type to which nothing else belongs yet.
Site SiteOf(std::uint32_t record_type) {
  Site site;
  site.services = {ALRTNTFYSERV{}};
  site.services.front().recordType = record_type;
  return site;
}

/// A record with what the library makes of another's fields.
template <class Record>
Record Rewritten(const Record& from) {
  Record to{};
  ALRTNTFYSERV common{};
  alerting::WriteGeneralFields(alerting::ReadGeneralFields(common, from), common, to);
  if constexpr (alerting::kHas<Record, alerting::kMessage>) {
    alerting::DefaultMessage message;
    alerting::ReadDefaultMessage(from, message);
    alerting::WriteDefaultMessage(message, to);
  }
  return to;
}

/// What the library has written once it reads and writes the same.
template <std::uint32_t kType, class Record>
void UseSpecific(std::string_view bytes) {
  const auto record = RecordOf<Record>(bytes);
  Site site = SiteOf(kType);
  site.services.front().specificRecordId = record.guid;
  site.services.front().backupSpecificRecordId = record.guid;
  site.specific[kType] = {BytesOf(record)};
  const auto seen = AsAlertManagersSee(site).services;
  if (seen.size() != 1 || seen.front().modem.has_value() != seen.front().backupModem.has_value())
    std::abort();
  const Record once = Rewritten(record);
  if (BytesOf(once) != BytesOf(Rewritten(once))) std::abort();
}

template <class UserType>
void UseUser(std::string_view bytes) {
  const auto record = RecordOf<typename UserType::Record>(bytes);
  Site site = SiteOf(UserType::kRecordType);
  site.links = {ALRTUSRINSTSERV{}};
  site.links.front().userRecordId = record.guid;
  site.users[UserType::kRecordType] = {BytesOf(record)};
  const auto seen = AsAlertManagersSee(site).services;
  if (seen.size() != 1 || seen.front().users.size() != 1) std::abort();
  RequireSame(alertrecords::AddressOf(record).View(), seen.front().users.front().address);
}

/// A stored text and identifiers for it: what is cut keeps them in step, and cut again it stays.
void UseStoredText(std::string_view bytes) {
  constexpr std::size_t kLimit = 48;
  const alertrecords::KeywordTable& table = dbconfig::Keywords();
  alertrecords::KeywordIds ids{};
  for (std::size_t i = 0; i < std::min(ids.size(), bytes.size()); ++i)
    ids[i] = static_cast<std::uint8_t>(bytes[i]) % 16;
  const std::string_view stored = bytes.substr(std::min(ids.size(), bytes.size()));
  alertrecords::KeywordIds kept = ids;
  const std::string fit = table.Fit(stored, kept, kLimit);
  if (fit.size() > kLimit || !table.Expand(stored, ids).starts_with(table.Expand(fit, kept))) std::abort();
  alertrecords::KeywordIds again = kept;
  if (table.Fit(fit, again, kLimit) != fit || again != kept) std::abort();
  alertrecords::KeywordIds collapsed{};
  table.Collapse(table.Expand(stored, ids), collapsed);
}

using Use = void (*)(std::string_view);

template <class... UserType>
constexpr auto UsesOfUsers(std::tuple<UserType...>*) {
  return std::array<Use, sizeof...(UserType)>{&UseUser<UserType>...};
}
constexpr auto kUsers = UsesOfUsers(static_cast<alertrecords::UserTypes*>(nullptr));

constexpr Use kUses[] = {&UseStoredText,
                         &UseService,
                         &UseResponse,
                         &UseDelivery,
                         &UseDevice<&Site::snmp_managers, ALRTUSR_SNMPSERVICEREC>,
                         &UseDevice<&Site::modems, ALRTSERV_MODEM>,
                         &UseDevice<&Site::locations, ALRTMODEM_LOCATION>,
                         &UseDevice<&Site::providers, ALRTAPAGE_SERVICE_PROVIDER_REC>,
                         &UseSpecific<1, ALRTMHSSERVICEREC>,
                         &UseSpecific<2, ALRTSNMPSERVICEREC>,
                         &UseSpecific<3, ALRTMCISERVICEREC>,
                         &UseSpecific<4, ALRTCOMPUSSERVICEREC>,
                         &UseSpecific<5, ALRTSMTPSERVICEREC>,
                         &UseSpecific<6, ALRTMAPISERVICEREC>,
                         &UseSpecific<7, ALRTCCMAILSERVICEREC>,
                         &UseSpecific<8, ALRTWAVESERVICEREC>,
                         &UseSpecific<9, ALRTTTSSERVICEREC>,
                         &UseSpecific<11, ALRTAPAGESERVICEREC>,
                         &UseSpecific<12, ALRTNPAGESERVICEREC>,
                         &UseSpecific<13, ALRTGENPORTSERVICEREC>};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  const std::size_t kind = data[0] % (std::size(kUses) + kUsers.size());
  (kind < std::size(kUses) ? kUses[kind] : kUsers[kind - std::size(kUses)])(bytes);
  return 0;
}
