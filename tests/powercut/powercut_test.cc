// SPDX-License-Identifier: MIT
#include <signal.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <random>
#include <set>

#include "companions/alertstore/file_lock.h"
#include "companions/dbconfig/dbconfig.h"
#include "tests/companions/store_fixture.h"
#include "tests/powercut/disk.h"
#include "tests/powercut/versions.h"

using namespace alertstore;
using platform::GUID;

namespace {

constexpr int kRounds = 50;

// What writers told of: by kind and identity the last version, 0 for the configuration file.
using Told = std::map<std::string, std::map<std::string, std::uint32_t>>;

// A console of its own, whose lines are read as they come.
class Writer {
 public:
  explicit Writer(const std::string& arguments)
      : lines_(popen(("exec '" POWERCUT_WRITER "' " + arguments).c_str(), "r")) {}

  bool Read(Told& told) const {
    char kind[20], id[64];
    unsigned version = 0;
    if (std::fscanf(lines_, "%19s %63s %u", kind, id, &version) != 3) return false;
    told[kind][id] = version;
    return true;
  }

  // Reads what there still is and answers how the process has ended, as waitpid tells it.
  int ReadToEnd(Told& told) const {
    while (Read(told)) continue;
    return pclose(lines_);
  }

 private:
  std::FILE* const lines_;
};

std::string IntegrityOf(const std::string& directory) {
  sqlite3* connection = nullptr;
  sqlite3_open((directory + "/alerting.db").c_str(), &connection);
  std::string answer;
  const auto append = [](void* text, int, char** columns, char**) {
    *static_cast<std::string*>(text) += columns[0];
    return 0;
  };
  const int result = sqlite3_exec(connection, "PRAGMA integrity_check", append, &answer, nullptr);
  sqlite3_close(connection);
  return result == SQLITE_OK ? answer : sqlite3_errstr(result);
}

// What is wrong with a data directory after the end of its writers, a line each.
class Inspection {
 public:
  Inspection(std::string directory, Told told) : directory_(std::move(directory)), missing_(std::move(told)) {
    setenv("ALERTING_DATA", directory_.c_str(), 1);
    missing_.erase("process");
    InspectConfigFile();
    InspectStores();
    for (const auto& [kind, records] : missing_)
      for (const auto& [id, version] : records)
        Fault("lost " + kind + ' ' + id + ", version " + std::to_string(version));
  }

  const std::string& Faults() const { return faults_; }
  bool LostSomething() const { return faults_.find("lost ") != std::string::npos; }

 private:
  void Fault(const std::string& what) { faults_ += what + '\n'; }
  void Expect(bool holds, const std::string& what) {
    if (!holds) Fault(what);
  }

  void InspectConfigFile() {
    std::ifstream file(directory_ + '/' + dbconfig::kConfigFileName);
    if (!file) return;
    missing_["file"].clear();
    Expect(nlohmann::json::accept(file), "torn configuration file");
  }

  void InspectStores() {
    CAlertNtfyServDB services;
    CAlertRespDB responses;
    if (services.DBOpen() != kOk || responses.DBOpen() != kOk) return Fault("does not open");
    if (const std::string answer = IntegrityOf(directory_); answer != "ok") return Fault(answer);
    std::set<GUID> linked, specifics;
    Scan("service", services, [&](const ALRTNTFYSERV& record) { linked.insert(record.specificRecordId); });
    Scan("specific", *services.SpecificStore<ALRTMHSSERVICEREC>(),
         [&](const ALRTMHSSERVICEREC& record) { specifics.insert(record.guid); });
    Expect(linked == specifics, "half a pair");
    Scan("response", responses, [](const ALERTRESPREC&) {});
    Expect(services.File().DBFileLock() == kOk && responses.File().DBFileLock() == kOk, "a lock is left");
  }

  template <class Record, class Visitor>
  void Scan(const std::string& kind, RecordStore<Record>& store, Visitor visit) {
    auto& missing = missing_[kind];
    Record record{};
    Status status = store.DBAlertRecFindFirst(kByIdentity, 0, nullptr, record);
    for (; status == kOk; status = store.DBAlertRecFindNext(record)) {
      visit(record);
      Expect(powercut::IsOfOneWrite(record), "torn " + kind);
      const auto found = missing.find(IdentityOf(record).ToString());
      if (found != missing.end() && found->second <= powercut::VersionOf(record)) missing.erase(found);
    }
    Expect(status == kEndOfScan || status == kNotFound, "unreadable " + kind);
  }

  const std::string directory_;
  Told missing_;
  std::string faults_;
};

class PowerCutTest : public StoreTest {
 protected:
  PowerCutTest() { FileLock::SetWaitLimit(std::chrono::milliseconds(0)); }

  // Cuts the power of a new console, and answers what is wrong then with what its disk has kept. Half of the
  // cuts are early ones, while the database is made and when there are few records.
  static Inspection Cut(int round, bool lies) {
    const test_support::TemporaryDirectory data, kept;
    std::mt19937 random(static_cast<unsigned>(round));
    const auto cut_at = 1 + random() % (round % 4 < 2 ? 1000 : 10000);
    const Writer writer('\'' + data.Path() + "' " + std::to_string(round) + " '" + kept.Path() + "' " +
                        std::to_string(cut_at) + (round % 2 == 0 ? " 0" : " 1") + (lies ? " 1" : " 0"));
    Told told;
    const int status = writer.ReadToEnd(told);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == powercut::kPowerCut) << status;
    return {kept.Path(), told};
  }

  // The files of a data directory that is in order, once the configuration file was written.
  std::set<std::string> NamesAfterAWrite() const {
    EXPECT_EQ(Inspection(directory_, {}).Faults(), "");
    EXPECT_EQ(dbconfig::MakeDbConfig()->CreateAlertServerConfigFile(0), 0u);
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(directory_))
      names.insert(entry.path().filename());
    return names;
  }
};

TEST_F(PowerCutTest, WhatWasAcknowledgedSurvives) {
  for (int round = 0; round < kRounds; ++round) EXPECT_EQ(Cut(round, false).Faults(), "") << round;
}

// Were nothing lost on a disk whose syncs are lies, the test above would prove nothing.
TEST_F(PowerCutTest, SyncsThatAreLiesLoseWhatWasAcknowledged) {
  int lost = 0;
  for (int round = 0; round < kRounds; round += 5) lost += Cut(round, true).LostSomething();
  EXPECT_GT(lost, 0);
  RecordProperty("CutsThatLost", lost);
}

TEST_F(PowerCutTest, KilledWritersLoseNothingAndLeaveNothingBehind) {
  const auto names = NamesAfterAWrite();
  Told told;
  std::mt19937 random(1);
  for (int round = 0; round < kRounds; ++round) {
    const Writer writer('\'' + directory_ + "' " + std::to_string(round));
    for (auto lines = 1 + random() % 40; lines > 0; --lines) ASSERT_TRUE(writer.Read(told));
    usleep(static_cast<useconds_t>(random() % 2000));
    kill(static_cast<pid_t>(told["process"]["itself"]), SIGKILL);
    EXPECT_TRUE(WIFSIGNALED(writer.ReadToEnd(told)));
    EXPECT_EQ(Inspection(directory_, told).Faults(), "") << round;
  }
  EXPECT_EQ(NamesAfterAWrite(), names);
}

}  // namespace
