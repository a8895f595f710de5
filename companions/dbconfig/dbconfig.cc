// SPDX-License-Identifier: MIT
#include "companions/dbconfig/dbconfig.h"

#include <atomic>
#include <chrono>
#include <cstring>
#include <exception>
#include <string>
#include <utility>

#include "companions/alertstore/problem.h"
#include "companions/dbconfig/document.h"
#include "companions/dbconfig/site.h"
#include "platform/base/atomic_write.h"
#include "platform/base/paths.h"
#include "platform/base/process_lock.h"
#include "platform/base/utf8.h"

namespace dbconfig {
namespace {

/// Conversions under way in this process, on any thread and through any object.
std::atomic<int> g_conversions{0};

/// How many ask that nothing be written for now.
std::atomic<int> g_held_back{0};

class Conversion {
 public:
  Conversion() { ++g_conversions; }
  ~Conversion() { --g_conversions; }
  Conversion(const Conversion&) = delete;
  Conversion& operator=(const Conversion&) = delete;
};

std::string& FailureText() {
  static thread_local std::string text;
  return text;
}

std::uint32_t Fail(std::uint32_t failure, std::string text) {
  FailureText() = std::move(text);
  return failure;
}

/// Consoles take turns, so that none puts an older reading of the stores over a newer one: the lock is taken
/// before the stores are read, and the last console to write has then read last, too.
std::uint32_t WriteConfigFile() {
  const std::string directory = platform::DataDirectory(), path = directory + "/" + kConfigFileName;
  platform::FileError error;
  if (!platform::PreparePrivateDirectory(directory, error)) return Fail(kFileUnwritable, error.text);
  const platform::ProcessLock lock(path + ".lock", std::chrono::seconds(5));
  if (lock.Outcome() == platform::LockOutcome::kTimeout)
    return Fail(kFileLocked, "another console is writing the file; try again");
  if (lock.Outcome() != platform::LockOutcome::kHeld) return Fail(kFileUnwritable, lock.Error().text);
  Site site;
  if (const alertstore::Status status = ReadSite(site); status != alertstore::kOk)
    return Fail(kStoresUnreadable, alertstore::ProblemText(status));
  // Only its owner may read it, because it holds the passwords of the services.
  const platform::WriteOutcome outcome = platform::ReplaceFile(path, WriteDocument(site), 0600, &error);
  if (outcome == platform::WriteOutcome::kFailed) return Fail(kFileUnwritable, error.text);
  return outcome == platform::WriteOutcome::kNotFlushed ? Fail(kNotFlushed, error.text) : 0;
}

std::uint32_t Write() {
  const Conversion under_way;
  try {
    return WriteConfigFile();
  } catch (const std::exception&) {
    return Fail(kStoresUnreadable, "there is not enough memory");  // with a document of that size
  }
}

class RealDbConfig : public DbConfig {
 public:
  void GetQEVDataDirectory(char* buffer, std::size_t size) override {
    if (size == 0) return;
    const std::string directory = platform::DataDirectory();
    const std::size_t length = platform::Utf8Prefix(directory, size - 1);
    std::memcpy(buffer, directory.data(), length);
    buffer[length] = '\0';
  }

  std::uint32_t CreateAlertServerConfigFile(std::uint32_t) override { return g_held_back == 0 ? Write() : 0; }

  std::uint32_t IsConversionComplete() override { return g_conversions == 0 ? 1 : 0; }
};

}  // namespace

std::string LastFailureText() { return FailureText(); }

HeldBack::HeldBack() { ++g_held_back; }

HeldBack::~HeldBack() { --g_held_back; }

std::string HeldBack::Write() { return dbconfig::Write() == 0 ? "" : LastFailureText(); }

std::unique_ptr<DbConfig> MakeDbConfig() { return std::make_unique<RealDbConfig>(); }

}  // namespace dbconfig
