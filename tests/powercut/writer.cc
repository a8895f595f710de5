// SPDX-License-Identifier: MIT
// A console that writes records and the configuration file until its power is cut or it is killed, and tells
// of every success once it has it:  powercut_writer DIRECTORY SEED [KEPT CUT_AT TEARS LIES]
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "companions/alertstore/stores.h"
#include "companions/dbconfig/dbconfig.h"
#include "tests/powercut/disk.h"
#include "tests/powercut/versions.h"

using namespace alertstore;
using platform::GUID;

namespace {

constexpr int kVisits = 1000;  // an end, should nobody make one

// One line, whole or not at all.
void Tell(const char* kind, const std::string& id, unsigned version) {
  std::printf("%s %s %u\n", kind, id.c_str(), version);
  std::fflush(stdout);
}

void Require(bool succeeded, const char* what) {
  if (succeeded) return;
  Tell("failure", what, 0);
  _exit(1);
}

template <class Record>
void Acknowledge(const char* kind, const Record& record) {
  Tell(kind, IdentityOf(record).ToString(), powercut::VersionOf(record));
}

class Writer {
 public:
  explicit Writer(unsigned seed) : random_(seed) {}

  // The last to close the database moves the journal into it and removes the journal. In a long visit the
  // journal grows until that is done on the way.
  void Visit() {
    CAlertNtfyServDB services;
    CAlertRespDB responses;
    Require(services.DBOpen() == kOk && responses.DBOpen() == kOk, "opening");
    const int writes = random_() % 4 == 0 ? 400 : 8;
    for (int i = 0; i < writes; ++i) Write(services, responses);
    WriteConfigFile();
  }

 private:
  void Write(CAlertNtfyServDB& services, CAlertRespDB& responses) {
    const auto kind = random_() % 5;
    if (kind == 0) AddService(services);
    if (kind == 1) AddResponse(responses);
    if (kind == 2) Update("service", services, services_);
    if (kind == 3) Update("specific", *services.SpecificStore<ALRTMHSSERVICEREC>(), specifics_);
    if (kind == 4) Update("response", responses, responses_);
  }

  void AddService(CAlertNtfyServDB& services) {
    auto& common = services_.emplace_back();
    auto& specific = specifics_.emplace_back();
    common.recordType = 1;
    powercut::Stamp(common, ++version_);
    powercut::Stamp(specific, version_);
    GUID id{}, specific_id{};
    Require(services.DBAlertRecAdd(common, id, specific, specific_id) == kOk, "adding-service");
    Acknowledge("service", common);
    Acknowledge("specific", specific);
  }

  void AddResponse(CAlertRespDB& responses) {
    auto& response = responses_.emplace_back();
    powercut::Stamp(response, ++version_);
    GUID id{};
    Require(responses.DBAlertRecAdd(response, id) == kOk, "adding-response");
    Acknowledge("response", response);
  }

  template <class Record>
  void Update(const char* kind, RecordStore<Record>& store, std::vector<Record>& records) {
    if (records.empty()) return;
    Record& record = records[random_() % records.size()];
    powercut::Stamp(record, ++version_);
    Require(store.File().DBFileLock() == kOk, "locking");
    Require(store.DBAlertRecUpdate(record) == kOk, "updating");
    Require(store.File().DBFileUnlock() == kOk, "unlocking");
    Acknowledge(kind, record);
  }

  static void WriteConfigFile() {
    Require(dbconfig::MakeDbConfig()->CreateAlertServerConfigFile(0) == 0, "converting");
    Tell("file", dbconfig::kConfigFileName, 0);
  }

  std::mt19937 random_;
  std::uint32_t version_ = 0;
  std::vector<ALRTNTFYSERV> services_;
  std::vector<ALRTMHSSERVICEREC> specifics_;
  std::vector<ALERTRESPREC> responses_;
};

}  // namespace

int main(int count, char** arguments) {
  if (count < 3) return 2;
  const auto seed = static_cast<unsigned>(std::atoi(arguments[2]));
  setenv("ALERTING_DATA", arguments[1], 1);
  if (count == 7)
    powercut::Follow({arguments[1], arguments[3], std::atol(arguments[4]), seed, *arguments[5] == '1',
                      *arguments[6] == '1'});
  Tell("process", "itself", static_cast<unsigned>(getpid()));
  Writer writer(seed);
  for (int i = 0; i < kVisits; ++i) writer.Visit();
}
