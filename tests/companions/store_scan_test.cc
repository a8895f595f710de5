// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "companions/alertstore/sqlite_engine.h"
#include "tests/companions/store_fixture.h"

using namespace alertstore;
using platform::GUID;

namespace {

using StoreScanTest = StoreTest;

TEST_F(StoreScanTest, AScanGivesTheRecordsInTheOrderOfAdding) {
  Opened<CAlertNtfyServDB> services;
  ALRTNTFYSERV record{};
  EXPECT_EQ(services.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record), kNotFound);

  AddNamed(services, "Zulu");
  const GUID middle = AddNamed(services, "Mike");
  AddNamed(services, "Alpha");
  EXPECT_EQ(NamesOf(services, kByIdentity), "Zulu Mike Alpha");

  record.serviceId = middle;
  record.name.Assign("Nan");
  ASSERT_EQ(services.DBAlertRecUpdate(record), kOk);
  EXPECT_EQ(NamesOf(services, kByIdentity), "Zulu Nan Alpha") << "a change leaves a record at its place";
}

TEST_F(StoreScanTest, FindNextAfterTheEndStaysAtTheEnd) {
  Opened<CAlertNtfyServDB> services;
  ALRTNTFYSERV record{};
  EXPECT_EQ(services.DBAlertRecFindNext(record), kEndOfScan) << "no scan was begun";
  AddNamed(services, "Only");
  ASSERT_EQ(services.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record), kOk);
  EXPECT_EQ(services.DBAlertRecFindNext(record), kEndOfScan);
  EXPECT_EQ(services.DBAlertRecFindNext(record), kEndOfScan);
  EXPECT_EQ(record.name.View(), "Only");

  AddNamed(services, "Second");
  ASSERT_EQ(services.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record), kOk);
  EXPECT_EQ(services.DBAlertRecFindFirst(99, 0, nullptr, record), kInvalidArgument);
  EXPECT_EQ(services.DBAlertRecFindNext(record), kEndOfScan)
      << "a search that failed ends the scan before it";
}

TEST_F(StoreScanTest, ARecordDeletedDuringAScanIsSkipped) {
  Opened<CAlertNtfyServDB> services;
  Opened<CAlertNtfyServDB> other;
  std::vector<GUID> ids;
  for (const char* name : {"a", "b", "c", "d", "e"}) ids.push_back(AddNamed(services, name));

  ALRTNTFYSERV record{};
  ASSERT_EQ(services.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record), kOk);
  ASSERT_EQ(services.DBAlertRecFindNext(record), kOk);
  EXPECT_EQ(record.name.View(), "b");
  ASSERT_EQ(services.DBAlertRecDelete(ids[1]), kOk);  // the one the scan stands on
  ASSERT_EQ(other.DBAlertRecDelete(ids[2]), kOk);     // the next one, through another store object
  AddNamed(services, "f");
  std::string rest;
  while (services.DBAlertRecFindNext(record) == kOk) rest += record.name.View();
  EXPECT_EQ(rest, "def");
}

TEST_F(StoreScanTest, AScanMayChangeEveryRecordItMeets) {
  Opened<CAlertNtfyServDB> services;
  for (int i = 0; i < 200; ++i) AddNamed(services, std::to_string(i));
  ALRTNTFYSERV record{};
  int met = 0;
  Status status = services.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record);
  for (; status == kOk; status = services.DBAlertRecFindNext(record)) {
    EXPECT_EQ(record.name.View(), std::to_string(met++));
    record.enabled = record.enabled + 1;
    ASSERT_EQ(services.DBAlertRecUpdate(record), kOk);
  }
  EXPECT_EQ(met, 200);
}

TEST_F(StoreScanTest, TwoScansOfOneFileDoNotDisturbEachOther) {
  Opened<CAlertNtfyServDB> outer, inner;
  for (const char* name : {"a", "b", "c"}) AddNamed(outer, name);
  ALRTNTFYSERV record{};
  std::string seen;
  Status status = outer.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record);
  for (; status == kOk; status = outer.DBAlertRecFindNext(record)) seen += NamesOf(inner, kByIdentity) + ';';
  EXPECT_EQ(seen, "a b c;a b c;a b c;");
}

// A link is found by its user and by its user record; both keys may be shared by several links.
TEST_F(StoreScanTest, AKeyedScanStaysWithinItsKey) {
  Opened<CAlertUsrInstServDB> links;
  const GUID ann = GUID::Generate(), bob = GUID::Generate();
  GUID id{};
  for (const auto& [user, name] : {std::pair{ann, "1"}, {bob, "2"}, {ann, "3"}, {bob, "4"}, {ann, "5"}}) {
    ALRTUSRINSTSERV link{};
    link.userId = user;
    link.serviceName.Assign(name);
    ASSERT_EQ(links.DBAlertRecAdd(link, id), kOk);
  }
  const auto names_of = [&links](const GUID& user) {
    std::string names;
    ALRTUSRINSTSERV link{};
    Status status = links.DBAlertRecFindFirst(kLinkByUser, 16, &user, link);
    for (; status == kOk; status = links.DBAlertRecFindNext(link)) names += link.serviceName.View();
    return names;
  };
  EXPECT_EQ(names_of(ann), "135");
  EXPECT_EQ(names_of(bob), "24");
  EXPECT_EQ(names_of(GUID::Generate()), "");
}

struct NameSearch {
  const char* label;
  std::string key;
  std::uint32_t length;
  const char* found;  // null: nothing
};

TEST_F(StoreScanTest, ANameFindsItselfAloneWhateverTheLengthOfItsKey) {
  Opened<CAlertSERV_MODEMDB> modems;
  for (const char* name : {"Modem (2)", "Modem", ""}) AddNamed(modems, name);
  const std::string longest(64, 'x');
  AddNamed(modems, longest);

  const std::string padded = std::string("Modem") + std::string(60, '\0');
  const std::string garbage = std::string("Modem\0trailing", 14);
  for (const NameSearch& search : std::vector<NameSearch>{
           {"its own length", "Modem", 5, "Modem"},
           {"whole field", padded, 65, "Modem"},
           {"64 bytes", padded, 64, "Modem"},
           {"garbage behind the terminator", garbage, 14, "Modem"},
           {"the beginning of names", "Mode", 4, nullptr},
           {"longer than any name", "Modem (2) ", 10, nullptr},
           {"other case", "modem", 5, nullptr},
           {"empty name", std::string(1, '\0'), 1, ""},
           {"longest name", longest, 64, longest.c_str()},
           {"longer than the field", std::string(66, 'x'), 66, nullptr},
       }) {
    SCOPED_TRACE(search.label);
    ALRTSERV_MODEM modem{};
    const Status status = modems.DBAlertRecFindFirst(kModemByName, search.length, search.key.data(), modem);
    ASSERT_EQ(status, search.found == nullptr ? kNotFound : kOk);
    if (search.found == nullptr) continue;
    EXPECT_EQ(modem.name.View(), search.found);
    EXPECT_EQ(modems.DBAlertRecFindNext(modem), kEndOfScan);
  }
}

// A record from elsewhere may have bytes behind the terminator of its name, or no terminator at all.
TEST_F(StoreScanTest, ANameIsComparedUpToItsTerminator) {
  Opened<CAlertMODEM_LOCATIONDB> locations;
  ALRTMODEM_LOCATION office{};
  std::memcpy(office.name.Data(), "Office\0garbage", 14);
  ALRTMODEM_LOCATION full{};
  std::memset(full.name.Data(), 'f', sizeof full.name);
  GUID office_id{}, full_id{}, id{};
  ASSERT_EQ(locations.DBAlertRecAdd(office, office_id), kOk);
  ASSERT_EQ(locations.DBAlertRecAdd(full, full_id), kOk);

  ALRTMODEM_LOCATION found{};
  ASSERT_EQ(locations.DBAlertRecFindFirst(kLocationByName, 6, "Office", found), kOk);
  EXPECT_EQ(found.guid, office_id);
  ASSERT_EQ(locations.DBAlertRecFindFirst(kLocationByName, 65, std::string(65, 'f').data(), found), kOk);
  EXPECT_EQ(found.guid, full_id);
  ALRTMODEM_LOCATION again{};
  again.name.Assign("Office");
  EXPECT_EQ(locations.DBAlertRecAdd(again, id), kNotUnique);
}

// A scan that stops half-way must not hold its read transaction: another console's journal could not be
// emptied.
TEST_F(StoreScanTest, AnAbandonedScanSoonSeesWhatAnotherConsoleWrote) {
  Opened<CAlertNtfyServDB> services;
  for (const char* name : {"a", "b", "c"}) AddNamed(services, name);
  SetEngine(std::make_shared<SqliteEngine>(directory_));
  Opened<CAlertNtfyServDB> elsewhere;
  ALRTNTFYSERV record{};
  ASSERT_EQ(services.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record), kOk);
  ASSERT_EQ(services.DBAlertRecFindNext(record), kOk);  // stands in a running read now

  const GUID added = AddNamed(elsewhere, "d");
  ALRTNTFYSERV found{};
  found.serviceId = added;
  Status status = kNotFound;
  for (int i = 0; i < 500 && status != kOk; ++i) {
    usleep(10000);
    status = services.DBAlertRecRetrieve(added, found);
  }
  EXPECT_EQ(status, kOk);
  std::string rest;
  while (services.DBAlertRecFindNext(record) == kOk) rest += record.name.View();
  EXPECT_EQ(rest, "cd") << "and the scan goes on from its place";
}

// A read transaction that began before another console's last write cannot become a write.
TEST_F(StoreScanTest, AWriteDuringAScanSucceedsAfterAnotherConsolesWrite) {
  Opened<CAlertNtfyServDB> services;
  for (const char* name : {"a", "b", "c"}) AddNamed(services, name);
  SetEngine(std::make_shared<SqliteEngine>(directory_));
  Opened<CAlertNtfyServDB> elsewhere;
  ALRTNTFYSERV record{};
  ASSERT_EQ(services.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record), kOk);
  ASSERT_EQ(services.DBAlertRecFindNext(record), kOk);
  AddNamed(elsewhere, "d");
  AddNamed(services, "e");
  EXPECT_EQ(NamesOf(elsewhere, kByIdentity), "a b c d e");
}

}  // namespace
