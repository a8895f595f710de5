// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <unordered_set>

#include "alerting/frame/stores.h"
#include "alerting/services/guid_hash.h"

/// The services enabled on each alert manager.
namespace alerting {

/// The manager that takes over when another fails; null for none. Every enabling of a service with a backup
/// record enables it there too.
GUID& BackupManagerGuid();

/// Enables a service on a manager, or disables it: removes its first entry, whichever manager that names.
/// Enabling one that has an entry changes nothing. A failed add shows its message; nothing else is reported.
void EnableServiceOnManager(const ALRTNTFYSERV& service, const GUID& manager, bool enable);

/// True when an entry in the store names both.
bool IsServiceOnManager(const GUID& service, const GUID& manager);

/// All entries as they were when last loaded.
class EnabledServicesCache {
 public:
  void Load();
  bool Contains(const GUID& service, const GUID& manager) const;

 private:
  struct Pair {
    GUID service, manager;
    friend bool operator==(const Pair&, const Pair&) = default;
  };
  struct PairHash {
    std::size_t operator()(const Pair& pair) const {
      return GuidHash()(pair.service) * 31 + GuidHash()(pair.manager);
    }
  };

  std::unordered_set<Pair, PairHash> pairs_;
};

EnabledServicesCache& TheEnabledServices();

}  // namespace alerting
