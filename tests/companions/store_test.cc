// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

#include "companions/alertstore/sqlite_engine.h"
#include "tests/companions/store_fixture.h"

using namespace alertstore;
using platform::GUID;

namespace {

TEST_F(StoreTest, AddWritesTheFreshIdentityToBothPlaces) {
  Opened<CAlertNtfyServDB> services;
  ALRTNTFYSERV record{};
  record.name.Assign("Mail");
  GUID first{}, second{};
  ASSERT_EQ(services.DBAlertRecAdd(record, first), kOk);
  EXPECT_FALSE(first.IsNull());
  EXPECT_EQ(record.serviceId, first);
  ASSERT_EQ(services.DBAlertRecAdd(record, second), kOk);
  EXPECT_NE(second, first) << "an identity in the buffer is not used";
  EXPECT_EQ(record.serviceId, second);
}

TEST_F(StoreTest, EveryByteOfARecordComesBack) {
  Opened<CAlertRespDB> responses;
  ALERTRESPREC record;
  auto* bytes = reinterpret_cast<std::uint8_t*>(&record);
  for (std::size_t i = 0; i < sizeof record; ++i) bytes[i] = static_cast<std::uint8_t>(i * 7 + i / 256);
  GUID id{};
  ASSERT_EQ(responses.DBAlertRecAdd(record, id), kOk);

  ALERTRESPREC read{};
  read.responseId = id;
  GUID scratch{};
  ASSERT_EQ(responses.DBAlertRecRetrieve(scratch, read), kOk);
  EXPECT_EQ(std::memcmp(&read, &record, sizeof record), 0);
}

TEST_F(StoreTest, RetrieveGoesByTheIdentityInTheRecord) {
  Opened<CAlertNtfyServDB> services;
  AddNamed(services, "First");
  const GUID second = AddNamed(services, "Second");

  ALRTNTFYSERV read{};
  read.serviceId = second;
  ASSERT_EQ(services.DBAlertRecRetrieve(platform::kNullGuid, read), kOk);
  EXPECT_EQ(read.name.View(), "Second");

  ALRTNTFYSERV missing{};
  missing.serviceId = GUID::Generate();
  missing.name.Assign("as it was");
  const ALRTNTFYSERV before = missing;
  EXPECT_EQ(services.DBAlertRecRetrieve(missing.serviceId, missing), kNotFound);
  EXPECT_EQ(std::memcmp(&missing, &before, sizeof before), 0);
}

TEST_F(StoreTest, UpdateAndDeleteReportARecordThatIsNotThere) {
  Opened<CAlertNtfyServDB> services;
  const GUID id = AddNamed(services, "Mail");
  ALRTNTFYSERV record{};
  record.serviceId = id;
  record.name.Assign("Post");
  EXPECT_EQ(services.DBAlertRecUpdate(record), kOk);
  EXPECT_EQ(services.DBOpen(), kOk) << "opening an open store";
  EXPECT_EQ(NamesOf(services, kByIdentity), "Post");

  EXPECT_EQ(services.DBAlertRecDelete(id), kOk);
  EXPECT_EQ(services.DBAlertRecDelete(id), kNotFound);
  EXPECT_EQ(services.DBAlertRecUpdate(record), kNotFound);
  EXPECT_EQ(NamesOf(services, kByIdentity), "");
}

TEST_F(StoreTest, NamesOfModemsTypesAndLocationsAreUniqueEachInItsStore) {
  CAlertSERV_MODEMDB modems;
  CAlertSERV_MODEMDB types("QModemDB.dat");
  CAlertMODEM_LOCATIONDB locations;
  const auto is_unique_in = [](auto& store) {
    ASSERT_EQ(store.DBOpen(), kOk);
    typename std::remove_reference_t<decltype(store)>::RecordType record{};
    record.name.Assign("Standard");
    GUID id{};
    EXPECT_EQ(store.DBAlertRecAdd(record, id), kOk) << "taken by another store";
    const GUID first = id;
    const Status status = store.DBAlertRecAdd(record, id);
    EXPECT_EQ(status & 0xFFFF, 206u);
    EXPECT_EQ(id, first) << "a failed add leaves the identity";
    EXPECT_EQ(record.guid, first);
    record.guid = AddNamed(store, "Other");
    EXPECT_EQ(store.DBAlertRecUpdate(record), kNotUnique) << "renaming to a taken name";
  };
  is_unique_in(modems);
  is_unique_in(types);
  is_unique_in(locations);

  Opened<CAlertNtfyServDB> services;
  AddNamed(services, "Mail");
  AddNamed(services, "Mail");
  EXPECT_EQ(NamesOf(services, kByIdentity), "Mail Mail") << "services may share a name";
}

TEST_F(StoreTest, ARecordMayBringItsIdentity) {
  Opened<CAlertRespDB> responses;
  ALERTRESPREC record{};
  EXPECT_EQ(responses.AddWithIdentity(record), kInvalidArgument);
  record.responseId = GUID::Generate();
  EXPECT_EQ(responses.AddWithIdentity(record), kOk);
  EXPECT_EQ(responses.AddWithIdentity(record), kNotUnique);
  ALERTRESPREC found{};
  EXPECT_EQ(responses.DBAlertRecFindFirst(kByIdentity, 16, &record.responseId, found), kOk);
}

TEST_F(StoreTest, ATwoRecordAddLinksBothUnderFreshIdentities) {
  Opened<CAlertNtfyServDB> services;
  Opened<CAlertUsrInstServDB> links;
  Opened<CAlertUSR_MCIDB> users;

  ALRTNTFYSERV common{};
  ALRTMCISERVICEREC mci{};
  mci.loginId.Assign("gateway");
  GUID id{}, specific_id{};
  ASSERT_EQ(services.DBAlertRecAdd(common, id, mci, specific_id), kOk);
  EXPECT_EQ(common.serviceId, id);
  EXPECT_EQ(common.specificRecordId, specific_id);
  EXPECT_EQ(mci.guid, specific_id);
  ALRTMCISERVICEREC read{};
  read.guid = specific_id;
  ASSERT_EQ(services.SpecificStore<ALRTMCISERVICEREC>()->DBAlertRecRetrieve(specific_id, read), kOk);
  EXPECT_EQ(read.loginId.View(), "gateway");

  ALRTUSRINSTSERV link{};
  ALRTUSR_MCISERVICEREC user{};
  GUID link_id{}, user_id{};
  ASSERT_EQ(links.DBAlertRecAdd(link, link_id, user, user_id), kOk);
  ALRTUSRINSTSERV found{};
  ASSERT_EQ(links.DBAlertRecFindFirst(kLinkByUserRecord, 16, &user_id, found), kOk);
  EXPECT_EQ(found.guid, link_id);
  ALRTUSR_MCISERVICEREC found_user{};
  EXPECT_EQ(users.DBAlertRecFindFirst(CAlertUSR_MCIDB::kSelectors.by_id, 16, &user_id, found_user), kOk);
}

TEST_F(StoreTest, MailTypesOfOneLayoutHaveStoresOfTheirOwn) {
  Opened<CAlertNtfyServDB> services;
  ALRTNTFYSERV common{};
  ALRTMAPISERVICEREC mail{};
  GUID id{}, specific_id{};
  ASSERT_EQ(services.DBAlertRecAdd(common, id, mail, specific_id), kOk);
  ALRTCCMAILSERVICEREC other{};
  other.guid = specific_id;
  EXPECT_EQ(services.SpecificStore<ALRTCCMAILSERVICEREC>()->DBAlertRecRetrieve(specific_id, other),
            kNotFound);
}

TEST_F(StoreTest, ADroppedSpecificStoreTakesNoRecords) {
  CAlertNtfyServDB services;
  services.DropSpecificStore<ALRTWAVESERVICEREC>();
  ASSERT_EQ(services.DBOpen(), kOk);
  EXPECT_EQ(services.SpecificStore<ALRTWAVESERVICEREC>(), nullptr);
  EXPECT_NE(services.SpecificStore<ALRTTTSSERVICEREC>(), nullptr);
  ALRTNTFYSERV common{};
  ALRTWAVESERVICEREC wave{};
  GUID id{}, specific_id{};
  EXPECT_EQ(services.DBAlertRecAdd(common, id, wave, specific_id), kStoreClosed);
  EXPECT_EQ(NamesOf(services, kByIdentity), "");
}

TEST_F(StoreTest, AStoreThatIsNotOpenAnswersSoToEverything) {
  CAlertUsrInstServDB links;
  ALRTUSRINSTSERV link{};
  ALRTUSR_MHSSERVICEREC user{};
  GUID id{}, other{};
  EXPECT_FALSE(links.IsOpen());
  EXPECT_EQ(links.DBAlertRecFindFirst(kLinkByUser, 0, nullptr, link), kStoreClosed);
  EXPECT_EQ(links.DBAlertRecFindNext(link), kStoreClosed);
  EXPECT_EQ(links.DBAlertRecRetrieve(id, link), kStoreClosed);
  EXPECT_EQ(links.DBAlertRecAdd(link, id), kStoreClosed);
  EXPECT_EQ(links.DBAlertRecAdd(link, id, user, other), kStoreClosed);
  EXPECT_EQ(links.DBAlertRecUpdate(link), kStoreClosed);
  EXPECT_EQ(links.DBAlertRecDelete(id), kStoreClosed);
  EXPECT_EQ(links.File().DBFileLock(), kStoreClosed);
  EXPECT_EQ(links.File().DBFileUnlock(), kStoreClosed);
}

TEST_F(StoreTest, StoresOpenedAfterTheDirectoryChangedUseTheNewOne) {
  Opened<CAlertNtfyServDB> before;
  AddNamed(before, "old");
  UseDirectory(directory_ + "/a/new/one");
  Opened<CAlertNtfyServDB> after;
  EXPECT_EQ(NamesOf(after, kByIdentity), "");
  AddNamed(after, "new");
  EXPECT_EQ(NamesOf(before, kByIdentity), "old");
}

TEST_F(StoreTest, AConsistentReadSeesOneMomentAndRefusesWrites) {
  Opened<CAlertNtfyServDB> services;
  AddNamed(services, "a");
  // A second engine on the same directory has a connection of its own, as another console has.
  SetEngine(std::make_shared<SqliteEngine>(directory_));
  Opened<CAlertNtfyServDB> elsewhere;
  SetEngine(nullptr);
  {
    const std::shared_ptr<Engine> engine = CurrentEngine();
    const ReadScope outer(*engine), nested(*engine);
    ASSERT_EQ(nested.Result(), kOk);
    AddNamed(elsewhere, "b");
    EXPECT_EQ(NamesOf(services, kByIdentity), "a");
    ALRTNTFYSERV record{};
    GUID id{};
    EXPECT_EQ(services.DBAlertRecAdd(record, id), kInsideRead);
  }
  EXPECT_EQ(NamesOf(services, kByIdentity), "a b");
  AddNamed(services, "c");
}

TEST_F(StoreTest, TakingTheLockShowsWhatItsLastHolderWrote) {
  Opened<CAlertNtfyServDB> services;
  const GUID id = AddNamed(services, "before");
  AddNamed(services, "second");
  SetEngine(std::make_shared<SqliteEngine>(directory_));
  Opened<CAlertNtfyServDB> elsewhere;
  ALRTNTFYSERV record{};
  ASSERT_EQ(services.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record), kOk);
  ASSERT_EQ(services.DBAlertRecFindNext(record), kOk);  // a read transaction runs, and is not ended

  ALRTNTFYSERV changed{};
  changed.serviceId = id;
  changed.name.Assign("after");
  ASSERT_EQ(elsewhere.DBAlertRecUpdate(changed), kOk);
  ASSERT_EQ(services.File().DBFileLock(), kOk);
  record.serviceId = id;
  ASSERT_EQ(services.DBAlertRecRetrieve(id, record), kOk);
  EXPECT_EQ(record.name.View(), "after");
  EXPECT_EQ(services.File().DBFileUnlock(), kOk);
}

TEST_F(StoreTest, ReadersMakeNothing) {
  const std::string data = directory_ + "/data";
  UseDirectory(data);
  Opened<CAlertNtfyServDB> services;
  Opened<CAlertSERV_MODEMDB> modems;
  EXPECT_EQ(NamesOf(services, kByIdentity), "");
  const ReadScope nothing(*CurrentEngine());
  EXPECT_EQ(nothing.Result(), kOk);
  EXPECT_FALSE(std::filesystem::exists(data));
}

TEST_F(StoreTest, TheFirstWriteMakesTheStoresOfTheWholeSite) {
  Opened<CAlertNtfyServDB> services;
  AddNamed(services, "first");
  RawDatabase database(directory_);
  EXPECT_EQ(database.Ask("SELECT count(*) FROM sqlite_schema WHERE type='table'"), SiteSchemas().size());
  // Another console is in the middle of a write: readers neither wait nor write.
  database.Ask("BEGIN IMMEDIATE");
  SetEngine(std::make_shared<SqliteEngine>(directory_));
  Opened<CAlertUsrInstServDB> links;
  Opened<CAlertNtfyServDB> elsewhere;
  EXPECT_EQ(NamesOf(elsewhere, kByIdentity), "first");
}

// A console that was stopped in the middle of a change left the first tables alone, or the program is newer.
TEST_F(StoreTest, WhatIsMissingIsMadeByTheNextWriter) {
  {
    Opened<CAlertNtfyServDB> services;
    AddNamed(services, "first");
  }
  RawDatabase(directory_).Ask("DROP TABLE \"ModemDB.dat\"");
  Opened<CAlertSERV_MODEMDB> modems;
  EXPECT_EQ(NamesOf(modems, kModemByIdentity), "");
  AddNamed(modems, "made again");
  EXPECT_EQ(NamesOf(modems, kModemByIdentity), "made again");
}

TEST_F(StoreTest, ALinkIsFoundByServiceAndUserAtOnce) {
  Opened<CAlertUsrInstServDB> links;
  const GUID user = GUID::Generate();
  GUID key[] = {GUID::Generate(), user}, id{};
  ALRTUSRINSTSERV link{};
  link.userId = user;
  for (int i = 0; i < 3; ++i) {
    link.serviceId = i == 1 ? key[0] : GUID::Generate();
    ASSERT_EQ(links.DBAlertRecAdd(link, id), kOk);
  }
  EXPECT_EQ(links.DBAlertRecFindFirst(kLinkByServiceAndUser, sizeof key, key, link), kOk);
  EXPECT_EQ(link.serviceId, key[0]);
  EXPECT_EQ(links.DBAlertRecFindNext(link), kEndOfScan);
  key[1] = key[0];
  EXPECT_EQ(links.DBAlertRecFindFirst(kLinkByServiceAndUser, sizeof key, key, link), kNotFound);
}

}  // namespace
