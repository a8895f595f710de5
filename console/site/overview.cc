// SPDX-License-Identifier: MIT
#include "console/site/overview.h"

#include <map>
#include <tuple>

#include "companions/alertrecords/test_response.h"
#include "companions/alertrecords/user_entry.h"
#include "companions/alertstore/console_users.h"
#include "companions/alertstore/stores.h"
#include "companions/dbconfig/keywords.h"
#include "companions/dbconfig/service_types.h"
#include "console/site/walk.h"

namespace site {
namespace {

using namespace alertstore;  // NOLINT: records of most kinds are read here
using platform::GUID;

/// What records of one kind know by identity: a modem's name, a user's address.
using Texts = std::map<GUID, std::string>;

/// Reads one overview. The steps build on each other: what follows is put to services that are there.
class Reader {
 public:
  Status Read(Overview& overview);

 private:
  Status ReadServices();
  Status ReadManagers();
  Status ReadDelivered();
  Status ReadUsers();
  Status ReadEntries();
  Status ReadResponses();
  template <class Record>
  Status ReadModems();
  void NoteDelivered(const ALRTSERV_INST_NTFY_SERVREC& record);
  void NoteEntry(const ALRTUSRINSTSERV& link);

  Overview overview_;
  std::map<GUID, std::size_t> service_at_, manager_at_, user_at_;
  Texts modems_, addresses_;
};

std::string Shown(std::string_view stored, const std::uint8_t (&bytes)[alertrecords::kMaxKeywords]) {
  alertrecords::KeywordIds ids{};
  std::copy(std::begin(bytes), std::end(bytes), ids.begin());
  return dbconfig::Keywords().Expand(stored, ids);
}

bool IsTest(const ALERTRESPREC& response) {
  for (std::uint32_t type = 1; type <= 15; ++type)
    if (response.responseId == alertrecords::TestResponseId(type)) return true;
  return false;
}

template <class Record>
Status Reader::ReadModems() {
  RecordStore<Record> store;
  return WalkAll(store, [this](const Record& record) {
    modems_[IdentityOf(record)] = record.modemName.View();
    return kOk;
  });
}

Status Reader::ReadServices() {
  for (const Status status : {ReadModems<ALRTMCISERVICEREC>(), ReadModems<ALRTCOMPUSSERVICEREC>(),
                              ReadModems<ALRTAPAGESERVICEREC>(), ReadModems<ALRTNPAGESERVICEREC>(),
                              ReadModems<ALRTGENPORTSERVICEREC>()})
    if (status != kOk) return status;
  CAlertNtfyServDB store;
  return WalkAll(store, [this](const ALRTNTFYSERV& record) {
    if (dbconfig::FindServiceType(record.recordType) == nullptr)
      return kOk;  // the library has none such either
    Service service{record.serviceId,
                    std::string(record.name.View()),
                    record.recordType,
                    record.enabled != 0,
                    {},
                    0,
                    {},
                    {}};
    const auto name = [this](const GUID& id) {
      const auto found = modems_.find(id);
      return found == modems_.end() ? std::string() : found->second;
    };
    service.modem = name(record.specificRecordId);
    service.backup_modem = name(record.backupSpecificRecordId);
    service_at_[service.id] = overview_.services.size();
    overview_.services.push_back(std::move(service));
    return kOk;
  });
}

Status Reader::ReadManagers() {
  CAlert_SRV_CFGDB store;
  return WalkAll(store, [this](const ALRT_SRV_CFGREC& record) {
    manager_at_[record.guid] = overview_.managers.size();
    overview_.managers.push_back({record.guid, std::string(record.managerName.View()), {}, {}});
    return kOk;
  });
}

void Reader::NoteDelivered(const ALRTSERV_INST_NTFY_SERVREC& record) {
  const auto service = service_at_.find(record.serviceGuid);
  const auto manager = manager_at_.find(record.managerGuid);
  if (service == service_at_.end() || manager == manager_at_.end()) return;
  Manager& delivering = overview_.managers[manager->second];
  const bool backup = record.isBackup != 0;
  (backup ? delivering.backup_services : delivering.services).push_back(record.serviceGuid);
  overview_.services[service->second].managers.push_back(delivering.name + (backup ? " (backup)" : ""));
}

Status Reader::ReadDelivered() {
  CAlertSERV_INST_NTFY_SERVDB store;
  return WalkAll(store, [this](const ALRTSERV_INST_NTFY_SERVREC& record) {
    NoteDelivered(record);
    return kOk;
  });
}

Status Reader::ReadUsers() {
  std::vector<ConsoleUser> users;
  const Status status = ListConsoleUsers(users);
  for (const ConsoleUser& user : users) {
    user_at_[user.id] = overview_.users.size();
    overview_.users.push_back({user.id, user.name, 0});
  }
  return status;
}

void Reader::NoteEntry(const ALRTUSRINSTSERV& link) {
  const auto service = service_at_.find(link.serviceId);
  if (service == service_at_.end()) return;
  Service& used = overview_.services[service->second];
  ++used.users;
  if (const auto user = user_at_.find(link.userId); user != user_at_.end())
    ++overview_.users[user->second].entries;
  overview_.entries.push_back({link.userId, link.serviceId, used.name, used.record_type,
                               addresses_[link.userRecordId], link.userEnabled != 0});
}

Status Reader::ReadEntries() {
  Status status = kOk;
  const auto read_addresses = [&]<class... Type>(std::tuple<Type...>*) {
    const auto read = [&]<class OneType>(OneType) {
      typename OneType::Store store;
      return WalkAll(store, [this](const auto& record) {
        addresses_[IdentityOf(record)] = alertrecords::AddressOf(record).View();
        return kOk;
      });
    };
    (void)(((status = read(Type{})) == kOk) && ...);
  };
  read_addresses(static_cast<alertrecords::UserTypes*>(nullptr));
  if (status != kOk) return status;
  CAlertUsrInstServDB links;
  return WalkAll(links, [this](const ALRTUSRINSTSERV& link) {
    NoteEntry(link);
    return kOk;
  });
}

Status Reader::ReadResponses() {
  CAlertRespDB store;
  return WalkAll(store, [this](const ALERTRESPREC& record) {
    if (IsTest(record)) return kOk;
    overview_.responses.push_back({record.responseId, record.serviceId, record.userId,
                                   std::string(record.serviceName.View()),
                                   std::string(record.userName.View()), record.serviceRecordType,
                                   Shown(record.subject.View(), record.subjectKeywords),
                                   Shown(record.message.View(), record.messageKeywords)});
    return kOk;
  });
}

Status Reader::Read(Overview& overview) {
  for (const auto step : {&Reader::ReadServices, &Reader::ReadManagers, &Reader::ReadDelivered,
                          &Reader::ReadUsers, &Reader::ReadEntries, &Reader::ReadResponses})
    if (const Status status = (this->*step)()) return status;
  overview = std::move(overview_);
  return kOk;
}

}  // namespace

Status ReadOverview(Overview& overview) {
  const std::shared_ptr<Engine> engine = CurrentEngine();
  const ReadScope one_moment(*engine);
  if (one_moment.Result() != kOk) return one_moment.Result();
  return Reader().Read(overview);
}

}  // namespace site
