// SPDX-License-Identifier: MIT
#include "companions/netpath/netpath.h"

#include <cstring>
#include <exception>
#include <optional>
#include <utility>

#include "companions/alertstore/stores.h"
#include "companions/netpath/mounted_shares.h"
#include "companions/netpath/path_forms.h"
#include "platform/base/host_name.h"
#include "platform/base/paths.h"
#include "platform/base/utf8.h"

namespace netpath {
namespace {

constexpr std::uint32_t kFailed = 1;

/// Hands an answer out where there is one and the buffer holds it. Memory that ran out is a failure like any other.
template <class Find>
std::uint32_t Answer(const char* path, char* buffer, std::uint32_t size, Find&& find) {
  if (path == nullptr || buffer == nullptr) return kFailed;
  try {
    const std::optional<std::string> text = find(std::string(path));
    if (!text || text->size() >= size) return kFailed;
    std::memcpy(buffer, text->c_str(), text->size() + 1);
    return 0;
  } catch (const std::exception&) {
    return kFailed;
  }
}

/// False also where that cannot be read.
bool EveryManagerIsThisMachine() {
  alertstore::CAlert_SRV_CFGDB managers;
  alertstore::ALRT_SRV_CFGREC manager{};
  if (managers.DBOpen() != alertstore::kOk) return false;
  const std::string here = platform::HostName();
  const std::uint32_t selector = managers.Schema().selectors.front().number;
  auto status = managers.DBAlertRecFindFirst(selector, 0, nullptr, manager);
  for (; status == alertstore::kOk; status = managers.DBAlertRecFindNext(manager))
    if (!platform::EqualIgnoringCase(manager.managerName.View(), here)) return false;
  return status == alertstore::kNotFound || status == alertstore::kEndOfScan;
}

class RealNetPath : public NetPath {
 public:
  explicit RealNetPath(std::string mount_table) : mount_table_(std::move(mount_table)) {}

  // Where nobody else reads the paths, a local one says enough.
  std::uint32_t Operation13(std::uint32_t) override {
    try {
      return EveryManagerIsThisMachine() ? kNoConversion : 0;
    } catch (const std::exception&) {
      return 0;
    }
  }

  std::uint32_t Operation43(std::uint32_t, const char* path, char* buffer, std::uint32_t size) override {
    return Answer(path, buffer, size, FullPath);
  }

  std::uint32_t Operation159(std::uint32_t, const char* resolved, char* buffer, std::uint32_t size) override {
    return Answer(resolved, buffer, size, [this](const std::string& path) -> std::optional<std::string> {
      if (IsUniversal(path)) return path;
      std::string mounts;
      return platform::ReadWholeFile(mount_table_, mounts) ? OnMountedShare(path, mounts) : std::nullopt;
    });
  }

  std::uint32_t NetTreeFromPath(std::uint32_t, const char* universal, char* buffer,
                                std::uint32_t size) override {
    return Answer(universal, buffer, size, TreeOf);
  }

 private:
  const std::string mount_table_;
};

}  // namespace

std::unique_ptr<NetPath> MakeNetPath(std::string mount_table) {
  return std::make_unique<RealNetPath>(std::move(mount_table));
}

}  // namespace netpath
