// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <cstring>
#include <memory>
#include <string>

#include "tests/companions/store_fixture.h"
#include "tests/support/raw_database.h"

using namespace alertstore;
using platform::GUID;
using test_support::RawDatabase;

namespace {

TEST_F(StoreTest, AddWritesTheFreshIdentityToBothPlaces) {
  Services services;
  auto record = Named<ALRTNTFYSERV>("Mail");
  GUID first{}, second{};
  ASSERT_EQ(services.DBAlertRecAdd(record, first), kOk);
  EXPECT_FALSE(first.IsNull());
  EXPECT_EQ(record.serviceId, first);
  ASSERT_EQ(services.DBAlertRecAdd(record, second), kOk);
  EXPECT_NE(second, first) << "an identity in the buffer is not used";
  EXPECT_EQ(record.serviceId, second);
}

TEST_F(StoreTest, RetrieveGoesByTheIdentityInTheRecord) {
  Services services;
  AddNamed(services, "First");
  auto read = Named<ALRTNTFYSERV>("", AddNamed(services, "Second"));
  ASSERT_EQ(services.DBAlertRecRetrieve(platform::kNullGuid, read), kOk);
  EXPECT_EQ(read.name.View(), "Second");

  const auto before = Named<ALRTNTFYSERV>("as it was", GUID::Generate());
  ALRTNTFYSERV missing = before;
  EXPECT_EQ(services.DBAlertRecRetrieve(missing.serviceId, missing), kNotFound);
  EXPECT_EQ(std::memcmp(&missing, &before, sizeof before), 0);
}

TEST_F(StoreTest, UpdateAndDeleteReportARecordThatIsNotThere) {
  Services services;
  const auto record = Named<ALRTNTFYSERV>("Post", AddNamed(services, "Mail"));
  EXPECT_EQ(services.DBAlertRecUpdate(record), kOk);
  EXPECT_EQ(services.DBOpen(), kOk) << "opening an open store";
  EXPECT_EQ(NamesOf(services, kByIdentity), "Post");

  EXPECT_EQ(services.DBAlertRecDelete(record.serviceId), kOk);
  EXPECT_EQ(services.DBAlertRecDelete(record.serviceId), kNotFound);
  EXPECT_EQ(services.DBAlertRecUpdate(record), kNotFound);
  EXPECT_EQ(NamesOf(services, kByIdentity), "");
}

TEST_F(StoreTest, NamesOfModemsTypesAndLocationsAreUniqueEachInItsStore) {
  const auto is_unique_in = [](auto store) {
    auto record = Named<typename decltype(store)::RecordType>("Standard");
    GUID id{};
    EXPECT_EQ(store.DBAlertRecAdd(record, id), kOk) << "taken by another store";
    const GUID first = id;
    EXPECT_EQ(store.DBAlertRecAdd(record, id) & 0xFFFF, 206u);
    EXPECT_EQ(id, first) << "a failed add leaves the identity";
    EXPECT_EQ(record.guid, first);
    record.guid = AddNamed(store, "Other");
    EXPECT_EQ(store.DBAlertRecUpdate(record), kNotUnique) << "renaming to a taken name";
  };
  is_unique_in(Opened<CAlertSERV_MODEMDB>());
  is_unique_in(Opened<CAlertSERV_MODEMDB>("QModemDB.dat"));
  is_unique_in(Opened<CAlertMODEM_LOCATIONDB>());

  Services services;
  for (const char* name : {"Mail", "Mail"}) AddNamed(services, name);
  EXPECT_EQ(NamesOf(services, kByIdentity), "Mail Mail") << "services may share a name";
}

TEST_F(StoreTest, ATwoRecordAddLinksBothUnderFreshIdentities) {
  Services services;
  ALRTNTFYSERV common{};
  ALRTMCISERVICEREC mci{};
  GUID id{}, specific_id{};
  ASSERT_EQ(services.DBAlertRecAdd(common, id, mci, specific_id), kOk);
  EXPECT_EQ(common.serviceId, id);
  EXPECT_EQ(common.specificRecordId, specific_id);
  EXPECT_EQ(mci.guid, specific_id);
}

TEST_F(StoreTest, MailTypesOfOneLayoutHaveStoresOfTheirOwn) {
  Services services;
  ASSERT_EQ(Add(services, ALRTNTFYSERV{}, ALRTMAPISERVICEREC{}), kOk);
  EXPECT_EQ(test_support::RecordsOf(*services.SpecificStore<ALRTMAPISERVICEREC>(), kByIdentity).size(), 1u);
  EXPECT_EQ(test_support::RecordsOf(*services.SpecificStore<ALRTCCMAILSERVICEREC>(), kByIdentity).size(), 0u);
}

TEST_F(StoreTest, ADroppedSpecificStoreTakesNoRecords) {
  CAlertNtfyServDB services;
  services.DropSpecificStore<ALRTWAVESERVICEREC>();
  ASSERT_EQ(services.DBOpen(), kOk);
  EXPECT_EQ(services.SpecificStore<ALRTWAVESERVICEREC>(), nullptr);
  EXPECT_NE(services.SpecificStore<ALRTTTSSERVICEREC>(), nullptr);
  EXPECT_EQ(Add(services, ALRTNTFYSERV{}, ALRTWAVESERVICEREC{}), kStoreClosed);
  EXPECT_EQ(NamesOf(services, kByIdentity), "");
}

TEST_F(StoreTest, AStoreThatIsNotOpenAnswersSoToEverything) {
  CAlertUsrInstServDB links;
  ALRTUSRINSTSERV link{};
  EXPECT_FALSE(links.IsOpen());
  const Status answers[] = {links.DBAlertRecFindFirst(kLinkByUser, 0, nullptr, link),
                            links.DBAlertRecFindNext(link),
                            links.DBAlertRecRetrieve({}, link),
                            Add(links, link),
                            Add(links, link, ALRTUSR_MHSSERVICEREC{}),
                            links.DBAlertRecUpdate(link),
                            links.DBAlertRecDelete({}),
                            links.File().DBFileLock(),
                            links.File().DBFileUnlock()};
  EXPECT_THAT(answers, testing::Each(kStoreClosed));
}

TEST_F(StoreTest, StoresOpenedAfterTheDirectoryChangedUseTheNewOne) {
  Services before;
  AddNamed(before, "old");
  UseDirectory(directory_ + "/a/new/one");
  Services after;
  EXPECT_EQ(NamesOf(after, kByIdentity), "");
  AddNamed(after, "new");
  EXPECT_EQ(NamesOf(before, kByIdentity), "old");
}

TEST_F(StoreTest, AConsistentReadSeesOneMomentAndRefusesWrites) {
  Services services;
  AddNamed(services, "a");
  const std::shared_ptr<Engine> engine = CurrentEngine();
  BecomeAnotherConsole();
  Services elsewhere;
  {
    const ReadScope outer(*engine), nested(*engine);
    ASSERT_EQ(nested.Result(), kOk);
    AddNamed(elsewhere, "b");
    EXPECT_EQ(NamesOf(services, kByIdentity), "a");
    EXPECT_EQ(Add(services, {}), kInsideRead);
  }
  EXPECT_EQ(NamesOf(services, kByIdentity), "a b");
  AddNamed(services, "c");
}

TEST_F(StoreTest, TakingTheLockShowsWhatItsLastHolderWrote) {
  Services services;
  const GUID id = AddNamed(services, "before");
  AddNamed(services, "second");
  BecomeAnotherConsole();
  Services elsewhere;
  ALRTNTFYSERV record{};
  ASSERT_EQ(services.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record), kOk);
  ASSERT_EQ(services.DBAlertRecFindNext(record), kOk);  // a read transaction runs, and is not ended

  ASSERT_EQ(elsewhere.DBAlertRecUpdate(Named<ALRTNTFYSERV>("after", id)), kOk);
  ASSERT_EQ(services.File().DBFileLock(), kOk);
  EXPECT_EQ(Stored(services, id).name.View(), "after");
  EXPECT_EQ(services.File().DBFileUnlock(), kOk);
}

TEST_F(StoreTest, ReadersMakeNothing) {
  UseDirectory(directory_ + "/data");
  Services services;
  EXPECT_EQ(NamesOf(services, kByIdentity), "");
  EXPECT_EQ(ReadScope(*CurrentEngine()).Result(), kOk);
  EXPECT_FALSE(std::filesystem::exists(directory_ + "/data"));
}

TEST_F(StoreTest, TheFirstWriteMakesTheStoresOfTheWholeSite) {
  Services services;
  AddNamed(services, "first");
  RawDatabase database(directory_);
  EXPECT_EQ(database.Ask("SELECT count(*) FROM sqlite_schema WHERE type='table'"),
            std::to_string(SiteSchemas().size()));
  // Another console is in the middle of a write: readers neither wait nor write.
  database.Ask("BEGIN IMMEDIATE");
  BecomeAnotherConsole();
  Opened<CAlertUsrInstServDB> links;
  Services elsewhere;
  EXPECT_EQ(NamesOf(elsewhere, kByIdentity), "first");
}

// A console that was stopped in the middle of a change left the first tables alone, or the program is newer.
TEST_F(StoreTest, WhatIsMissingIsMadeByTheNextWriter) {
  AddNamed(*std::make_unique<Services>(), "first");
  RawDatabase(directory_).Ask("DROP TABLE \"ModemDB.dat\"");
  Opened<CAlertSERV_MODEMDB> modems;
  EXPECT_EQ(NamesOf(modems, kModemByIdentity), "");
  AddNamed(modems, "made again");
  EXPECT_EQ(NamesOf(modems, kModemByIdentity), "made again");
}

}  // namespace
