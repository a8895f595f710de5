// SPDX-License-Identifier: MIT
// How fast the record store reads, against the same reads on SQLite itself and on records in memory.
//
//   store_bench [records] [repetitions] [directory]

#include <stdlib.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "bench/measure.h"
#include "companions/alertstore/stores.h"

using namespace alertstore;
using namespace bench;
using platform::GUID;

namespace {

struct GuidHash {
  std::size_t operator()(const GUID& id) const {
    std::size_t hash;
    std::memcpy(&hash, &id, sizeof hash);  // identities are random
    return hash;
  }
};

// What the console does with a record is the same in all three; it keeps the compiler from leaving the reads
// out.
class Sum {
 public:
  template <class Record>
  void Take(const Record& record) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(&record);
    value_ += bytes[0] + bytes[sizeof record / 2] + std::uint64_t{bytes[sizeof record - 1]};
    ++records_;
  }
  bool operator==(const Sum&) const = default;
  std::uint64_t Records() const { return records_; }

 private:
  std::uint64_t value_ = 0;
  std::uint64_t records_ = 0;
};

// The stores, as the library reads them.
class Stores {
 public:
  Stores() {
    Require(services_.DBOpen() == kOk && users_.DBOpen() == kOk && links_.DBOpen() == kOk,
            "cannot open the stores");
  }

  void AddService(int number) {
    ALRTNTFYSERV common{};
    ALRTMHSSERVICEREC specific{};
    common.name.Assign("Service " + std::to_string(number));
    specific.loginId.Assign(common.name.View());
    GUID id, specific_id;
    Require(services_.DBAlertRecAdd(common, id, specific, specific_id) == kOk, "cannot add a service");
  }

  void AddUser(int number) {
    ALRTUSRINSTSERV link{};
    ALRTUSR_MHSSERVICEREC user{};
    user.userId = link.userId = GUID::Generate();
    user.userName.Assign("User " + std::to_string(number));
    GUID id, user_id;
    Require(links_.DBAlertRecAdd(link, id, user, user_id) == kOk, "cannot add a user");
  }

  Sum LoadServices() {
    Sum sum;
    ALRTNTFYSERV common;
    ALRTMHSSERVICEREC specific;
    auto* specifics = services_.SpecificStore<ALRTMHSSERVICEREC>();
    Status status = services_.DBAlertRecFindFirst(kByIdentity, 0, nullptr, common);
    for (; status == kOk; status = services_.DBAlertRecFindNext(common)) {
      sum.Take(common);
      specific.guid = common.specificRecordId;
      if (specifics->DBAlertRecRetrieve(specific.guid, specific) == kOk) sum.Take(specific);
    }
    return sum;
  }

  Sum ListUsers() {
    Sum sum;
    ALRTUSR_MHSSERVICEREC user;
    ALRTUSRINSTSERV link;
    Status status = users_.DBAlertRecFindFirst(CAlertUSR_MHSDB::kSelectors.scan, 0, nullptr, user);
    for (; status == kOk; status = users_.DBAlertRecFindNext(user)) {
      sum.Take(user);
      if (links_.DBAlertRecFindFirst(kLinkByUserRecord, 16, &user.guid, link) == kOk) sum.Take(link);
    }
    return sum;
  }

 private:
  CAlertNtfyServDB services_;
  CAlertUSR_MHSDB users_;
  CAlertUsrInstServDB links_;
};

// The same reads, by hand, on a connection of the same settings.
class RawSqlite {
 public:
  explicit RawSqlite(const std::string& directory) : connection_(directory) {
    services_ = connection_.Prepare("SELECT record FROM \"NtfyServDB.dat\" ORDER BY id");
    specific_ = connection_.Prepare("SELECT record FROM \"MhsNtfyServDB.dat\" WHERE substr(record,1,16)=?1");
    users_ = connection_.Prepare("SELECT record FROM \"UsrMhsDB.dat\" ORDER BY id");
    link_ = connection_.Prepare("SELECT record FROM \"UsrInstServDB.dat\" WHERE substr(record,33,16)=?1");
  }

  Sum LoadServices() {
    return ScanAndFind<ALRTNTFYSERV, ALRTMHSSERVICEREC>(
        services_, specific_, [](const ALRTNTFYSERV& common) { return common.specificRecordId; });
  }
  Sum ListUsers() {
    return ScanAndFind<ALRTUSR_MHSSERVICEREC, ALRTUSRINSTSERV>(
        users_, link_, [](const ALRTUSR_MHSSERVICEREC& user) { return user.guid; });
  }

 private:
  template <class Scanned, class Found, class Key>
  static Sum ScanAndFind(sqlite3_stmt* scan, sqlite3_stmt* find, Key key) {
    Sum sum;
    Scanned scanned;
    Found found;
    while (RawConnection::Read(scan, scanned)) {
      sum.Take(scanned);
      if (RawConnection::Find(find, key(scanned), found)) sum.Take(found);
    }
    sqlite3_reset(scan);
    return sum;
  }

  RawConnection connection_;
  sqlite3_stmt *services_, *specific_, *users_, *link_;
};

// The same records in arrays, found through a hash table; read by copying, as a store hands them out.
class Memory {
 public:
  Memory() {
    CAlertNtfyServDB services;
    CAlertUSR_MHSDB users;
    CAlertUsrInstServDB links;
    Require(services.DBOpen() == kOk && users.DBOpen() == kOk && links.DBOpen() == kOk,
            "cannot open the stores");
    ReadAll(services, kByIdentity, services_);
    ReadAll(*services.SpecificStore<ALRTMHSSERVICEREC>(), kByIdentity, specifics_);
    ReadAll(users, CAlertUSR_MHSDB::kSelectors.scan, users_);
    ReadAll(links, kLinkByIdentity, links_);
    for (const auto& specific : specifics_) specific_by_id_[specific.guid] = &specific;
    for (const auto& link : links_) link_by_user_record_[link.userRecordId] = &link;
  }

  Sum LoadServices() {
    Sum sum;
    ALRTNTFYSERV common;
    ALRTMHSSERVICEREC specific;
    for (const auto& stored : services_) {
      std::memcpy(&common, &stored, sizeof common);
      sum.Take(common);
      std::memcpy(&specific, specific_by_id_.at(common.specificRecordId), sizeof specific);
      sum.Take(specific);
    }
    return sum;
  }

  Sum ListUsers() {
    Sum sum;
    ALRTUSR_MHSSERVICEREC user;
    ALRTUSRINSTSERV link;
    for (const auto& stored : users_) {
      std::memcpy(&user, &stored, sizeof user);
      sum.Take(user);
      std::memcpy(&link, link_by_user_record_.at(user.guid), sizeof link);
      sum.Take(link);
    }
    return sum;
  }

 private:
  template <class Record>
  static void ReadAll(RecordStore<Record>& store, std::uint32_t selector, std::vector<Record>& records) {
    Record record;
    Status status = store.DBAlertRecFindFirst(selector, 0, nullptr, record);
    for (; status == kOk; status = store.DBAlertRecFindNext(record)) records.push_back(record);
  }

  std::vector<ALRTNTFYSERV> services_;
  std::vector<ALRTMHSSERVICEREC> specifics_;
  std::vector<ALRTUSR_MHSSERVICEREC> users_;
  std::vector<ALRTUSRINSTSERV> links_;
  std::unordered_map<GUID, const ALRTMHSSERVICEREC*, GuidHash> specific_by_id_;
  std::unordered_map<GUID, const ALRTUSRINSTSERV*, GuidHash> link_by_user_record_;
};

// Runs the three in turn, so that whatever else the machine does meets all of them alike.
void Compare(const char* title, int repetitions, const std::function<Sum()>& store,
             const std::function<Sum()>& raw, const std::function<Sum()>& memory) {
  const Sum expected = memory();
  Require(store() == expected && raw() == expected, "the three do not read the same");
  std::vector<double> times[3];
  for (int i = 0; i < repetitions; ++i) {
    int column = 0;
    for (const auto* work : {&store, &raw, &memory})
      times[column++].push_back(Milliseconds([&] { Require((*work)() == expected, "a read went wrong"); }));
  }
  const Timing ours = Summarise(times[0]), sqlite = Summarise(times[1]), ram = Summarise(times[2]);
  std::printf("%-30s %9.2f %9.2f %9.2f %12.2f %12.2f  minimum of %d\n", title, ours.minimum, sqlite.minimum,
              ram.minimum, ours.minimum / sqlite.minimum, ours.minimum / ram.minimum, repetitions);
  std::printf("%-30s %9.2f %9.2f %9.2f %12.2f %12.2f  median\n", "", ours.median, sqlite.median, ram.median,
              ours.median / sqlite.median, ours.median / ram.median);
}

void Run(int records, int repetitions, const std::string& directory) {
  Stores stores;
  const double adding = Milliseconds([&] {
    for (int i = 0; i < records; ++i) stores.AddService(i);
    for (int i = 0; i < records; ++i) stores.AddUser(i);
  });
  std::printf("%d services and %d users; a durable two-record add took %.3f ms\n\n", records, records,
              adding / (2.0 * records));
  std::printf("%-30s %9s %9s %9s %12s %12s\n", "milliseconds", "store", "SQLite", "memory", "store/SQLite",
              "store/memory");
  RawSqlite raw(directory);
  Memory memory;
  Compare(
      "load services", repetitions, [&] { return stores.LoadServices(); }, [&] { return raw.LoadServices(); },
      [&] { return memory.LoadServices(); });
  Compare(
      "list users", repetitions, [&] { return stores.ListUsers(); }, [&] { return raw.ListUsers(); },
      [&] { return memory.ListUsers(); });
}

}  // namespace

int main(int argc, char** argv) {
  const int records = argc > 1 ? std::atoi(argv[1]) : 10000;
  const int repetitions = argc > 2 ? std::atoi(argv[2]) : 25;
  Require(records > 0 && repetitions > 0, "usage: store_bench [records] [repetitions] [directory]");
  std::string directory = std::filesystem::temp_directory_path() / "store-bench-XXXXXX";
  if (argc > 3) directory = std::string(argv[3]) + "/store-bench-XXXXXX";
  Require(mkdtemp(directory.data()) != nullptr, "cannot make a directory");
  setenv("ALERTING_DATA", directory.c_str(), 1);
  Run(records, repetitions, directory);
  std::filesystem::remove_all(directory);
}
