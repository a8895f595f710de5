// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "companions/alertstore/backup.h"
#include "companions/alertstore/left_out.h"
#include "companions/alertstore/problem.h"
#include "platform/base/atomic_write.h"
#include "tests/companions/store_fixture.h"
#include "tests/support/failing_engine.h"
#include "tests/support/own_disk.h"
#include "tests/support/raw_database.h"

using namespace alertstore;
using platform::GUID;
using test_support::FailingEngine;
using test_support::kAnyStore;
using test_support::StoreOp;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

void Tamper(const std::string& directory, const char* sql) { test_support::RawDatabase(directory).Ask(sql); }

TEST_F(StoreTest, ADirectoryThatCannotBeMadeIsAStatus) {
  std::ofstream(directory_ + "/file") << "in the way";
  UseDirectory(directory_ + "/file/data");
  CAlertNtfyServDB services;
  EXPECT_EQ(services.DBOpen(), kIoError);
  EXPECT_EQ(Add(services, {}), kStoreClosed);
  EXPECT_EQ(CurrentEngine()->BeginRead(), kIoError);

  UseDirectory(directory_);
  EXPECT_EQ(services.DBOpen(), kOk) << "a store may be opened again";
}

TEST_F(StoreTest, WhatStandsInThePlaceOfAFileIsAStatus) {
  std::filesystem::create_directory(directory_ + "/alerting.db");
  CAlertNtfyServDB services;
  EXPECT_EQ(services.DBOpen(), kIoError);

  std::filesystem::remove(directory_ + "/alerting.db");
  std::ofstream(directory_ + "/alerting.db") << std::string(9000, 'x');
  EXPECT_EQ(services.DBOpen(), kCorrupt);

  std::filesystem::remove(directory_ + "/alerting.db");
  std::filesystem::create_directory(directory_ + "/alerting.lock");
  EXPECT_EQ(services.DBOpen(), kOk);
  EXPECT_EQ(services.File().DBFileLock(), kIoError);
}

TEST_F(StoreTest, AScanPassesOverARecordOfForeignSizeAndCountsIt) {
  Opened<CAlertSERV_MODEMDB> modems;
  std::vector<GUID> ids;
  for (const char* name : {"a", "b", "c", "d"}) ids.push_back(AddNamed(modems, name));
  Tamper(directory_, "UPDATE \"ModemDB.dat\" SET record=substr(record,1,100) WHERE id IN (1,3)");
  EXPECT_EQ(NamesOf(modems, kModemByIdentity), "b d");
  EXPECT_EQ(NamesOf(modems, kModemByIdentity), "b d") << "and does not count it again";
  EXPECT_EQ(DescribeLeftOut(LeftOutRecords()), "2 records in ModemDB.dat cannot be read and are left out");

  auto modem = Named<ALRTSERV_MODEM>("", ids[2]);
  EXPECT_EQ(modems.DBAlertRecRetrieve(modem.guid, modem), kCorrupt)
      << "one that is asked for by name is told";
  EXPECT_EQ(modems.DBAlertRecFindFirst(kModemByName, 1, "c", modem), kNotFound);
  for (const GUID& damaged : {ids[0], ids[2]}) ASSERT_EQ(modems.DBAlertRecDelete(damaged), kOk);
  EXPECT_EQ(NamesOf(modems, kModemByIdentity), "b d");
  EXPECT_EQ(DescribeLeftOut(LeftOutRecords()), "");
}

TEST_F(StoreTest, ADatabaseOfAnotherProgramIsRefusedAtOnce) {
  Tamper(directory_, "CREATE TABLE \"ModemDB.dat\"(id INTEGER PRIMARY KEY, name TEXT)");
  CAlertSERV_MODEMDB modems;
  EXPECT_EQ(modems.DBOpen(), kCorrupt);
  EXPECT_THAT(ProblemText(kCorrupt), HasSubstr("ModemDB.dat"));
  Tamper(directory_, "DROP TABLE \"ModemDB.dat\"; PRAGMA user_version=9999");
  EXPECT_EQ(modems.DBOpen(), kCorrupt);
  EXPECT_THAT(ProblemText(kCorrupt), HasSubstr("newer version"));
}

// Mapped into memory, such a file ends the program with a signal.
TEST_F(StoreTest, ADatabaseThatShrinksIsAStatus) {
  Opened<CAlertRespDB> responses;
  for (int i = 0; i < 200; ++i) ASSERT_EQ(Add(responses, {}), kOk);
  Tamper(directory_, "PRAGMA wal_checkpoint(TRUNCATE)");
  std::filesystem::resize_file(directory_ + "/alerting.db", 3 * 8192);
  Services others;  // has nothing of the file in memory
  ALERTRESPREC response{};
  Status status = responses.DBAlertRecFindFirst(kByIdentity, 0, nullptr, response);
  while (status == kOk) status = responses.DBAlertRecFindNext(response);
  EXPECT_NE(status, kEndOfScan);
  EXPECT_NE(Add(responses, {}), kOk);
}

// A console that goes on in the nameless file would lose what it tells of as written.
TEST_F(StoreTest, ADatabaseThatLosesItsNameTakesNoMoreWrites) {
  Services services;
  AddNamed(services, "there");
  Copied copied;
  ASSERT_EQ(BackUp(directory_ + "/copy", copied), kOk);
  std::filesystem::rename(directory_ + "/copy", directory_ + "/alerting.db");
  EXPECT_EQ(Add(services, {}), kCorrupt);
  EXPECT_THAT(ProblemText(kCorrupt), HasSubstr("replaced"));
  ALRTNTFYSERV record{};
  EXPECT_EQ(services.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record), kCorrupt);
}

TEST_F(StoreTest, WhatOthersMayHavePreparedIsRefusedByName) {
  const std::string precious = directory_ + "/precious";
  std::ofstream(precious) << "precious";
  std::filesystem::create_directories(directory_ + "/data");
  UseDirectory(directory_ + "/data");
  for (const char* name : {"alerting.db", "alerting.db-wal", "alerting.lock"}) {
    const std::string path = directory_ + "/data/" + name;
    for (const bool hard : {true, false}) {
      SCOPED_TRACE(path + (hard ? " hard" : " symbolic"));
      hard ? std::filesystem::create_hard_link(precious, path)
           : std::filesystem::create_symlink(precious, path);
      if (std::string(name).ends_with("-wal")) std::ofstream(directory_ + "/data/alerting.db");
      CAlertNtfyServDB services;
      const Status opened = services.DBOpen();
      EXPECT_EQ(opened == kOk ? services.File().DBFileLock() : opened, kUnsafe);
      EXPECT_THAT(ProblemText(kUnsafe), HasSubstr(path));
      std::filesystem::remove(path);
      std::filesystem::remove(directory_ + "/data/alerting.db");
    }
  }
  EXPECT_EQ(std::filesystem::file_size(precious), 8u);

  chmod((directory_ + "/data").c_str(), 0770);
  CAlertNtfyServDB services;
  EXPECT_EQ(services.DBOpen(), kUnsafe);
  EXPECT_THAT(ProblemText(kUnsafe), HasSubstr("chmod go-w " + directory_ + "/data"));
}

TEST_F(StoreTest, ATooLongPathIsToldBeforeAnythingIsMade) {
  const std::string part(200, 'd');
  UseDirectory(directory_ + '/' + part + '/' + part + '/' + part);
  CAlertNtfyServDB services;
  EXPECT_EQ(services.DBOpen(), kPathTooLong);
  EXPECT_TRUE(std::filesystem::is_empty(directory_));
}

TEST_F(StoreTest, AFullDiskIsToldAsThat) {
  test_support::OnOwnDisk(directory_, [&] {
    std::ofstream(directory_ + "/filler") << std::string(4 << 20, 'x');
    CAlertNtfyServDB services;
    platform::FileError error;
    return services.DBOpen() == kOk && Add(services, {}) == kDiskFull &&
           platform::ReplaceFile(directory_ + "/file", std::string(100000, 'x'), 0600, &error) ==
               platform::WriteOutcome::kFailed &&
           error.number == ENOSPC;
  });
}

TEST_F(StoreTest, AReadOnlyDiskCanBeRead) {
  const auto body = [&] {
    AddNamed(*std::make_unique<Services>(), "there");
    if (!test_support::MakeReadOnly(directory_)) return false;
    Services services;
    return NamesOf(services, kByIdentity) == "there" && Add(services, {}) == kReadOnly;
  };
  test_support::OnOwnDisk(directory_, body, "4m");
}

TEST_F(StoreTest, AFileNameThatCannotBeATableIsRefused) {
  for (const char* name : {"", "Modem\"DB", "a'b", "dir/file", "nul l"}) {
    CAlertSERV_MODEMDB modems(name);
    EXPECT_EQ(modems.DBOpen(), kInvalidArgument) << name;
  }
}

// The second of the two records cannot be written, so the first must not be there either.
TEST_F(StoreTest, ATwoRecordAddThatFailsHalfWayLeavesNothing) {
  Services services;
  ASSERT_EQ(services.DBAlertRecDelete(AddNamed(services, "first")), kOk);
  Tamper(directory_,
         "CREATE TRIGGER refuse BEFORE INSERT ON \"TtsNtfyServDB.dat\" BEGIN SELECT RAISE(ABORT,'no'); END");
  const auto before = Named<ALRTNTFYSERV>("half");
  ALRTNTFYSERV common = before;
  ALRTTTSSERVICEREC specific{};
  GUID id{}, specific_id{};
  EXPECT_NE(services.DBAlertRecAdd(common, id, specific, specific_id), kOk);
  EXPECT_EQ(NamesOf(services, kByIdentity), "");
  EXPECT_TRUE(id.IsNull() && specific_id.IsNull());
  EXPECT_EQ(std::memcmp(&common, &before, sizeof before), 0);
  AddNamed(services, "and the next write works");
}

// The failure shows only when the transaction is committed, and must show in the write's own status.
TEST_F(StoreTest, AWriteThatTheDiskRefusesIsAStatusAndLeavesNothing) {
  Services services;
  AddNamed(services, "a");
  const auto handler = signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit limited{std::filesystem::file_size(directory_ + "/alerting.db-wal") + 5000, before.rlim_max};
  EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limited), 0);
  ALRTNTFYSERV record{};
  GUID id{};
  EXPECT_NE(services.DBAlertRecAdd(record, id), kOk);
  EXPECT_TRUE(id.IsNull());
  EXPECT_EQ(NamesOf(services, kByIdentity), "a");
  setrlimit(RLIMIT_FSIZE, &before);
  signal(SIGXFSZ, handler);
  AddNamed(services, "b");
  EXPECT_EQ(NamesOf(services, kByIdentity), "a b");
}

class FailingEngineTest : public StoreTest {
 protected:
  FailingEngineTest() { SetEngine(engine_); }

  const std::shared_ptr<FailingEngine> engine_ = std::make_shared<FailingEngine>(CurrentEngine());
};

TEST_F(FailingEngineTest, TellsWhichLocksAreHeld) {
  {
    Opened<CAlertRespDB> responses;
    ASSERT_EQ(responses.File().DBFileLock(), kOk);
    EXPECT_THAT(engine_->HeldLocks(), ElementsAre("RespDB.dat"));
  }
  EXPECT_THAT(engine_->HeldLocks(), IsEmpty());
}

TEST_F(FailingEngineTest, OpeningTheServicesStopsAtTheFirstFailure) {
  engine_->FailAll("MciNtfyServDB.dat", StoreOp::kOpen);
  CAlertNtfyServDB services;
  EXPECT_EQ(services.DBOpen(), kIoError);
  EXPECT_EQ(engine_->Count(kAnyStore, StoreOp::kOpen), 4);
  engine_->FailNone();
  EXPECT_EQ(services.DBOpen(), kOk);
  EXPECT_TRUE(services.SpecificStore<ALRTGENPORTSERVICEREC>()->IsOpen());
}

}  // namespace
