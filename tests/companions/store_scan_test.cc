// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <string>
#include <vector>

#include "tests/companions/store_fixture.h"

using namespace alertstore;
using platform::GUID;

namespace {

using StoreScanTest = StoreTest;

TEST_F(StoreScanTest, FindNextAfterTheEndStaysAtTheEnd) {
  Services services;
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
  Services services, other;
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
  Services services;
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
  Services outer, inner;
  for (const char* name : {"a", "b", "c"}) AddNamed(outer, name);
  ALRTNTFYSERV record{};
  std::string seen;
  Status status = outer.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record);
  for (; status == kOk; status = outer.DBAlertRecFindNext(record)) seen += NamesOf(inner, kByIdentity) + ';';
  EXPECT_EQ(seen, "a b c;a b c;a b c;");
}

// A user may have several links.
TEST_F(StoreScanTest, AKeyedScanStaysWithinItsKey) {
  Opened<CAlertUsrInstServDB> links;
  const GUID ann = GUID::Generate(), bob = GUID::Generate();
  for (const auto& [user, name] : {std::pair{ann, "1"}, {bob, "2"}, {ann, "3"}, {bob, "4"}, {ann, "5"}}) {
    ALRTUSRINSTSERV link{};
    link.userId = user;
    link.serviceName.Assign(name);
    ASSERT_EQ(Add(links, link), kOk);
  }
  for (const auto& [user, expected] : {std::pair{ann, "135"}, {bob, "24"}, {GUID::Generate(), ""}}) {
    std::string names;
    for (const auto& link : test_support::RecordsOf(links, kLinkByUser, &user))
      names += link.serviceName.View();
    EXPECT_EQ(names, expected);
  }
}

TEST_F(StoreScanTest, ANameFindsItselfAloneWhateverTheLengthOfItsKey) {
  Opened<CAlertSERV_MODEMDB> modems;
  for (const char* name : {"Modem (2)", "Modem", ""}) AddNamed(modems, name);
  const std::string longest(64, 'x');
  AddNamed(modems, longest);

  const std::string nothing = "(nothing)";
  const std::pair<std::string, std::string> rows[] = {
      {"Modem", "Modem"},
      {"Modem" + std::string(60, '\0'), "Modem"},  // the whole field
      {"Modem" + std::string(59, '\0'), "Modem"},
      {std::string("Modem\0trailing", 14), "Modem"},
      {"Mode", nothing},
      {"Modem (2) ", nothing},
      {"modem", nothing},
      {std::string(1, '\0'), ""},
      {longest, longest},
      {std::string(66, 'x'), nothing}};
  for (const auto& [key, found] : rows) {
    SCOPED_TRACE(key);
    ALRTSERV_MODEM modem{};
    const auto length = static_cast<std::uint32_t>(key.size());
    const Status status = modems.DBAlertRecFindFirst(kModemByName, length, key.data(), modem);
    ASSERT_EQ(status, found == nothing ? kNotFound : kOk);
    if (status != kOk) continue;
    EXPECT_EQ(modem.name.View(), found);
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
  GUID office_id{}, full_id{};
  ASSERT_EQ(locations.DBAlertRecAdd(office, office_id), kOk);
  ASSERT_EQ(locations.DBAlertRecAdd(full, full_id), kOk);

  ALRTMODEM_LOCATION found{};
  ASSERT_EQ(locations.DBAlertRecFindFirst(kLocationByName, 6, "Office", found), kOk);
  EXPECT_EQ(found.guid, office_id);
  ASSERT_EQ(locations.DBAlertRecFindFirst(kLocationByName, 65, std::string(65, 'f').data(), found), kOk);
  EXPECT_EQ(found.guid, full_id);
  EXPECT_EQ(Add(locations, Named<ALRTMODEM_LOCATION>("Office")), kNotUnique);
}

// A read transaction that began before another console's last write cannot become a write. A scan that stops half-way
// must not hold its read transaction either: another console's journal could not be emptied.
TEST_F(StoreScanTest, AnAbandonedScanDisturbsNeitherWritesNorAnotherConsole) {
  Services services;
  for (const char* name : {"a", "b", "c"}) AddNamed(services, name);
  BecomeAnotherConsole();
  Services elsewhere;
  ALRTNTFYSERV record{};
  ASSERT_EQ(services.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record), kOk);
  ASSERT_EQ(services.DBAlertRecFindNext(record), kOk);  // stands in a running read now

  auto found = Named<ALRTNTFYSERV>("", AddNamed(elsewhere, "d"));
  Status status = kNotFound;
  for (int i = 0; i < 500 && status != kOk; ++i) {
    usleep(10000);
    status = services.DBAlertRecRetrieve({}, found);
  }
  EXPECT_EQ(status, kOk);
  ASSERT_EQ(services.DBAlertRecFindNext(record), kOk);
  EXPECT_EQ(record.name.View(), "c") << "the scan goes on from its place";
  AddNamed(elsewhere, "e");
  AddNamed(services, "f");
  EXPECT_EQ(NamesOf(elsewhere, kByIdentity), "a b c d e f");
}

}  // namespace
