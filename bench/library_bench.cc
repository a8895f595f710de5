// SPDX-License-Identifier: MIT
// How fast the library's own objects work, each against the same work on SQLite itself or in memory, in one
// run. usage: library_bench [records] [repetitions]
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <unordered_set>

#include "alerting/alerting.h"
#include "alerting/api/load.h"
#include "alerting/frame/app.h"
#include "alerting/managers/enabled_services.h"
#include "alerting/services/service_list.h"
#include "bench/measure.h"
#include "platform/ui/dialog.h"

using namespace alerting;  // NOLINT
using namespace bench;     // NOLINT

namespace {

constexpr int kCalls = 1'000'000;
constexpr int kSaves = 1'000;

struct UserDialog : platform::ui::Dialog {
  UserDialog() : Dialog(nullptr, "Users") {}
  platform::ui::ListBox list{*this, 1, "&Users:"};
};

/// A data directory of its own with the library loaded over it.
class Site {
 public:
  Site() : directory_((std::filesystem::temp_directory_path() / "library-bench-XXXXXX").string()) {
    Require(mkdtemp(directory_.data()) != nullptr, "cannot make a directory");
    setenv("ALERTING_DATA", directory_.c_str(), 1);
    Require(Load() && TheApp().OpenStores() == kStoresOpened, "cannot open the stores");
    TheApp().EnsureStoresOpen();
  }
  ~Site() {
    TheApp().CloseStores();
    Unload();
    std::filesystem::remove_all(directory_);
  }

  const std::string& Directory() const { return directory_; }

  void AddServices(int count) {
    for (int i = 0; i < count; ++i) {
      ALRTNTFYSERV common{};
      ALRTSMTPSERVICEREC specific{};
      common.recordType = RecordTypeOf(kTypeSmtp);
      common.name.Assign("Service " + std::to_string(i));
      GUID id{}, specific_id{};
      Require(ServiceStore().DBAlertRecAdd(common, id, specific, specific_id) == kOk, "cannot add a service");
    }
    TheServices().RemoveAll();
    Require(TheServices().Read(), "cannot read the list");
  }

  void AddUsers(int count) {
    for (int i = 0; i < count; ++i) {
      ALRTUSRINSTSERV link{};
      ALRTUSR_SMTPSERVICEREC user{};
      user.userId = link.userId = GUID::Generate();
      user.userName.Assign("User " + std::to_string(i));
      link.serviceId = TheServices().GetAt(0)->ServiceId();
      GUID id{}, user_id{};
      Require(UserLinkStore().DBAlertRecAdd(link, id, user, user_id) == kOk, "cannot add a user");
    }
  }

 private:
  std::string directory_;
};

/// The same work by hand on a connection of the same settings.
class Raw {
 public:
  explicit Raw(const std::string& directory) : connection_(directory) {
    services_ = connection_.Prepare("SELECT record FROM \"NtfyServDB.dat\" ORDER BY id");
    service_ = connection_.Prepare("SELECT record FROM \"NtfyServDB.dat\" WHERE substr(record,1,16)=?1");
    specific_ = connection_.Prepare("SELECT record FROM \"SmtpNtfyServDB.dat\" WHERE substr(record,1,16)=?1");
    users_ = connection_.Prepare("SELECT record FROM \"UsrSmtpDB.dat\" ORDER BY id");
    link_ = connection_.Prepare("SELECT record FROM \"UsrInstServDB.dat\" WHERE substr(record,33,16)=?1");
    update_service_ =
        connection_.Prepare("UPDATE \"NtfyServDB.dat\" SET record=?2 WHERE substr(record,1,16)=?1");
    update_specific_ =
        connection_.Prepare("UPDATE \"SmtpNtfyServDB.dat\" SET record=?2 WHERE substr(record,1,16)=?1");
  }

  /// Scans the services, reads each once more and its specific record, and keeps all of them, as objects do.
  void ReadList() {
    struct Kept {
      ALRTNTFYSERV common;
      ALRTSMTPSERVICEREC specific;
    };
    std::vector<std::unique_ptr<Kept>> kept;
    connection_.Execute("BEGIN");
    ALRTNTFYSERV common;
    while (RawConnection::Read(services_, common)) {
      auto service = std::make_unique<Kept>();
      Require(RawConnection::Find(service_, common.serviceId, service->common) &&
                  RawConnection::Find(specific_, service->common.specificRecordId, service->specific),
              "a record is missing");
      kept.push_back(std::move(service));
    }
    sqlite3_reset(services_);
    connection_.Execute("COMMIT");
  }

  /// Up to as many users as a list takes.
  void ListUsers() {
    std::vector<std::pair<std::string, GUID>> listed;
    ALRTUSR_SMTPSERVICEREC user;
    ALRTUSRINSTSERV link;
    connection_.Execute("BEGIN");
    while (listed.size() < 10'000 && RawConnection::Read(users_, user))
      if (RawConnection::Find(link_, user.guid, link)) listed.emplace_back(user.userName.View(), user.userId);
    sqlite3_reset(users_);
    connection_.Execute("COMMIT");
  }

  void Save(const ALRTNTFYSERV& common) {
    ALRTNTFYSERV stored;
    ALRTSMTPSERVICEREC specific;
    Require(RawConnection::Find(service_, common.serviceId, stored), "a record is missing");
    Update(update_service_, stored);
    Require(RawConnection::Find(specific_, stored.specificRecordId, specific), "a record is missing");
    Update(update_specific_, specific);
  }

 private:
  template <class Record>
  void Update(sqlite3_stmt* statement, const Record& record) {
    connection_.Execute("BEGIN IMMEDIATE");
    sqlite3_bind_blob(statement, 1, &record, sizeof(GUID), SQLITE_STATIC);
    sqlite3_bind_blob(statement, 2, &record, sizeof record, SQLITE_STATIC);
    Require(sqlite3_step(statement) == SQLITE_DONE, "cannot update");
    sqlite3_reset(statement);
    connection_.Execute("COMMIT");
  }

  RawConnection connection_;
  sqlite3_stmt *services_, *service_, *specific_, *users_, *link_, *update_service_, *update_specific_;
};

void Compare(const char* title, int repetitions, const std::function<void()>& ours,
             const std::function<void()>& reference, const char* reference_name) {
  std::vector<double> times[2];
  for (int i = 0; i < repetitions; ++i) {  // in turn, so that whatever else the machine does meets both alike
    times[0].push_back(Milliseconds(ours));
    times[1].push_back(Milliseconds(reference));
  }
  const Timing own = Summarise(times[0]), other = Summarise(times[1]);
  std::printf("%-44s %10.2f %10.2f %8.2f   %s\n", title, own.median, other.median, own.median / other.median,
              reference_name);
}

void ReadList() {
  TheServices().RemoveAll();
  Require(TheServices().Read(), "cannot read the list");
}

void ListUsers() {
  UserDialog dialog;
  Require(TheServices().GetAt(0)->FillUserList(dialog.list), "cannot list the users");
}

void CompareStoreWork(int records, int repetitions, const std::string& directory) {
  Raw raw(directory);
  const std::string count = std::to_string(records);
  Compare(("read a list of " + count + " services").c_str(), repetitions, ReadList, [&] { raw.ReadList(); },
          "SQLite");
  Compare(("list " + count + " users of a service").c_str(), repetitions, ListUsers, [&] { raw.ListUsers(); },
          "SQLite");
  const int saves = std::min(kSaves, TheServices().GetCount());
  Compare(("save " + std::to_string(saves) + " services").c_str(), 3,
          [&] {
            for (int i = 0; i < saves; ++i) Require(TheServices().GetAt(i)->SaveRecords(), "cannot save");
          },
          [&] {
            for (int i = 0; i < saves; ++i) raw.Save(TheServices().GetAt(i)->Common());
          },
          "SQLite");
}

void CompareCalls(int repetitions) {
  const int count = DomainServiceGetCount();
  std::vector<const ALRTNTFYSERV*> records;
  for (int i = 0; i < count; ++i) records.push_back(DomainServiceGetInfo(i));
  static volatile std::uint64_t sum = 0;
  Compare(
      "1,000,000 DomainServiceGetInfo", repetitions,
      [&] {
        for (int i = 0; i < kCalls; ++i)
          sum = sum + reinterpret_cast<std::uintptr_t>(DomainServiceGetInfo(i % count));
      },
      [&] {
        for (int i = 0; i < kCalls; ++i)
          sum = sum + reinterpret_cast<std::uintptr_t>(records[static_cast<std::size_t>(i % count)]);
      },
      "array access");
  const GUID manager = GUID::Generate();
  for (int i = 0; i < count; ++i)
    EnableServiceOnManager(*records[static_cast<std::size_t>(i)], manager, true);
  DomainServiceServerLoadRecords();
  std::unordered_set<std::string> set;
  const auto key = [&](const ALRTNTFYSERV& service) {
    std::string bytes(reinterpret_cast<const char*>(&service.serviceId), sizeof(GUID));
    return bytes.append(reinterpret_cast<const char*>(&manager), sizeof(GUID));
  };
  for (const ALRTNTFYSERV* record : records) set.insert(key(*record));
  Compare(("1,000,000 DomainServiceCachedIsServer on " + std::to_string(count)).c_str(), repetitions,
          [&] {
            for (int i = 0; i < kCalls; ++i) sum = sum + DomainServiceCachedIsServer(i % count, manager);
          },
          [&] {
            for (int i = 0; i < kCalls; ++i)
              sum = sum + set.count(key(*records[static_cast<std::size_t>(i % count)]));
          },
          "hash set");
}

/// How the time of one record grows with their number.
void Growth(int records) {
  Site site;
  site.AddServices(records);
  site.AddUsers(std::min(records, 10'000));
  const double list = Milliseconds(ReadList), users = Milliseconds(ListUsers);
  std::printf("%10d services: list read %8.2f us each; %6d users: listed %6.2f us each\n", records,
              1000 * list / records, std::min(records, 10'000), 1000 * users / std::min(records, 10'000));
}

}  // namespace

int main(int argc, char** argv) {
  const int records = argc > 1 ? std::atoi(argv[1]) : 10'000;
  const int repetitions = argc > 2 ? std::atoi(argv[2]) : 9;
  Require(records > 0 && repetitions > 0, "usage: library_bench [records] [repetitions]");
  std::printf("%-44s %10s %10s %8s\n", "milliseconds, median", "library", "reference", "ratio");
  {
    Site site;
    site.AddServices(records);
    site.AddUsers(records);
    CompareStoreWork(records, repetitions, site.Directory());
    CompareCalls(repetitions);
  }
  for (const int count : {1'000, 10'000, 100'000}) Growth(count);
}
