// SPDX-License-Identifier: MIT
#include "companions/dbconfig/dbconfig.h"

#include <atomic>
#include <chrono>
#include <cstring>
#include <exception>
#include <string>

#include "companions/dbconfig/document.h"
#include "companions/dbconfig/site.h"
#include "platform/base/paths.h"
#include "platform/base/process_lock.h"
#include "platform/base/utf8.h"

namespace dbconfig {
namespace {

/// Conversions under way in this process, on any thread and through any object.
std::atomic<int> g_conversions{0};

class Conversion {
 public:
  Conversion() { ++g_conversions; }
  ~Conversion() { --g_conversions; }
  Conversion(const Conversion&) = delete;
  Conversion& operator=(const Conversion&) = delete;
};

/// Consoles take turns, so that none puts an older reading of the stores over a newer one: the lock is taken
/// before the stores are read, and the last console to write has then read last, too.
std::uint32_t WriteConfigFile() {
  const std::string path = platform::DataDirectory() + "/" + kConfigFileName;
  if (!platform::MakeDirectories(platform::DataDirectory())) return kFileUnwritable;
  const platform::ProcessLock lock(path + ".lock", std::chrono::seconds(5));
  if (lock.Outcome() == platform::LockOutcome::kTimeout) return kFileLocked;
  if (lock.Outcome() != platform::LockOutcome::kHeld) return kFileUnwritable;
  Site site;
  if (ReadSite(site) != alertstore::kOk) return kStoresUnreadable;
  // Only its owner may read it, because it holds the passwords of the services.
  return platform::WriteFileAtomically(path, WriteDocument(site), 0600) ? 0 : kFileUnwritable;
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

  std::uint32_t CreateAlertServerConfigFile(std::uint32_t) override {
    const Conversion under_way;
    try {
      return WriteConfigFile();
    } catch (const std::exception&) {
      return kStoresUnreadable;  // out of memory, with a document of that size
    }
  }

  std::uint32_t IsConversionComplete() override { return g_conversions == 0 ? 1 : 0; }
};

}  // namespace

std::unique_ptr<DbConfig> MakeDbConfig() { return std::make_unique<RealDbConfig>(); }

}  // namespace dbconfig
