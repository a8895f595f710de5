// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>

namespace alerting {

/// What OpenDBs answers.
constexpr std::uint32_t kStoresOpened = 0;
constexpr std::uint32_t kStoresWereOpen = 1;
constexpr std::uint32_t kStoresFailed = 131274;  // 0x200CA

/// The library's application object: sets the library up when it is loaded, and owns the life of the store
/// set.
class CAlertConfigApp {
 public:
  /// Load and unload steps; run once each, before and after every other call. `clean_up` empties what the
  /// layers above keep of the stores' contents and is run by every CloseStores.
  bool InitInstance(std::function<void()> clean_up);
  void ExitInstance();

  /// Creates and opens the eighteen stores in their order: kStoresOpened, kStoresWereOpen, or kStoresFailed
  /// at the first that cannot be created or opened (those created before it stay until CloseStores). Shows no
  /// message.
  std::uint32_t OpenStores();
  /// Destroys the stores, waits until the configuration component has finished converting, runs the clean-up.
  void CloseStores();

  /// Every operation calls it before it touches a store. The first call after load closes and opens the
  /// stores; no later call retries, so that after a failure operations report their own.
  void EnsureStoresOpen();

  bool StoresOpen() const { return stores_open_; }

 private:
  std::unique_ptr<std::mutex> open_lock_;
  std::atomic<bool> stores_open_ = false;
  std::atomic<bool> open_in_progress_ = false;
  bool stores_ready_ = false;
  std::function<void()> clean_up_;

  void WaitWhileOpening() const;
  static bool CreateStores();
  static bool OpenEachStore();
};

/// The process's application object.
CAlertConfigApp& TheApp();

inline void EnsureStoresOpen() { TheApp().EnsureStoresOpen(); }

}  // namespace alerting
