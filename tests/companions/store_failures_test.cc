// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/resource.h>

#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "tests/companions/store_fixture.h"
#include "tests/support/failing_engine.h"

using namespace alertstore;
using platform::GUID;
using test_support::FailingEngine;
using test_support::kAnyStore;
using test_support::StoreOp;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Runs a statement on the database behind the stores' back.
void Tamper(const std::string& directory, const char* sql) {
  sqlite3* connection = nullptr;
  ASSERT_EQ(sqlite3_open((directory + "/alerting.db").c_str(), &connection), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(connection, sql, nullptr, nullptr, nullptr), SQLITE_OK)
      << sqlite3_errmsg(connection);
  sqlite3_close(connection);
}

TEST_F(StoreTest, ADirectoryThatCannotBeMadeIsAStatus) {
  std::ofstream(directory_ + "/file") << "in the way";
  UseDirectory(directory_ + "/file/data");
  CAlertNtfyServDB services;
  EXPECT_EQ(services.DBOpen(), kIoError);
  EXPECT_FALSE(services.IsOpen());
  GUID id{};
  ALRTNTFYSERV record{};
  EXPECT_EQ(services.DBAlertRecAdd(record, id), kStoreClosed);
  EXPECT_EQ(CurrentEngine()->BeginRead(), kIoError);

  UseDirectory(directory_);
  EXPECT_EQ(services.DBOpen(), kOk) << "a store may be opened again";
}

TEST_F(StoreTest, WhatStandsInThePlaceOfTheDatabaseIsAStatus) {
  std::filesystem::create_directory(directory_ + "/alerting.db");
  CAlertNtfyServDB services;
  EXPECT_EQ(services.DBOpen(), kIoError);

  std::filesystem::remove(directory_ + "/alerting.db");
  std::ofstream(directory_ + "/alerting.db") << std::string(9000, 'x');
  EXPECT_EQ(services.DBOpen(), kCorrupt);
}

TEST_F(StoreTest, AnUnusableLockFileIsAStatus) {
  std::filesystem::create_directory(directory_ + "/alerting.lock");
  Opened<CAlertNtfyServDB> services;
  EXPECT_EQ(services.File().DBFileLock(), kIoError);
}

TEST_F(StoreTest, ARecordOfForeignSizeIsAStatusAndTheScanGoesOn) {
  Opened<CAlertNtfyServDB> services;
  for (const char* name : {"a", "b", "c"}) AddNamed(services, name);
  Tamper(directory_, "UPDATE \"NtfyServDB.dat\" SET record=substr(record,1,100) WHERE id=2");

  ALRTNTFYSERV record{};
  ASSERT_EQ(services.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record), kOk);
  EXPECT_EQ(services.DBAlertRecFindNext(record), kCorrupt);
  EXPECT_EQ(record.name.View(), "a") << "the buffer is as it was";
  EXPECT_EQ(services.DBAlertRecFindNext(record), kOk);
  EXPECT_EQ(record.name.View(), "c");
}

TEST_F(StoreTest, AFileNameThatCannotBeATableIsRefused) {
  for (const char* name : {"", "Modem\"DB", "a'b", "dir/file", "nul l"}) {
    CAlertSERV_MODEMDB modems(name);
    EXPECT_EQ(modems.DBOpen(), kInvalidArgument) << name;
  }
}

// The second of the two records cannot be written, so the first must not be there either.
TEST_F(StoreTest, ATwoRecordAddThatFailsHalfWayLeavesNothing) {
  Opened<CAlertNtfyServDB> services;
  Tamper(directory_,
         "CREATE TRIGGER refuse BEFORE INSERT ON \"TtsNtfyServDB.dat\" BEGIN SELECT RAISE(ABORT,'no'); END");
  ALRTNTFYSERV common{};
  ALRTTTSSERVICEREC specific{};
  common.name.Assign("half");
  const ALRTNTFYSERV before = common;
  GUID id{}, specific_id{};
  EXPECT_NE(services.DBAlertRecAdd(common, id, specific, specific_id), kOk);
  EXPECT_EQ(NamesOf(services, kByIdentity), "");
  EXPECT_TRUE(id.IsNull() && specific_id.IsNull());
  EXPECT_EQ(std::memcmp(&common, &before, sizeof before), 0);
  AddNamed(services, "and the next write works");
}

// Lets no file of this process grow beyond `limit` while it lives.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t limit) : handler_(signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limited{limit, before_.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limited), 0);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    signal(SIGXFSZ, handler_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before_{};
  void (*const handler_)(int);
};

// The failure shows only when the transaction is committed, and must show in the write's own status.
TEST_F(StoreTest, AWriteThatTheDiskRefusesIsAStatusAndLeavesNothing) {
  Opened<CAlertNtfyServDB> services;
  AddNamed(services, "a");
  const auto journal_size = std::filesystem::file_size(directory_ + "/alerting.db-wal");
  ALRTNTFYSERV record{};
  GUID id{};
  {
    const FileSizeLimit limit(journal_size + 5000);
    EXPECT_NE(services.DBAlertRecAdd(record, id), kOk);
    EXPECT_TRUE(id.IsNull());
    EXPECT_EQ(NamesOf(services, kByIdentity), "a");
  }
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
