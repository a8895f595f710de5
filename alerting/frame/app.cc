// SPDX-License-Identifier: MIT
#include "alerting/frame/app.h"

#include <new>
#include <utility>

#include "alerting/frame/companions.h"
#include "alerting/frame/stores.h"
#include "alerting/frame/strings.h"
#include "platform/ui/desktop.h"

namespace alerting {
namespace {

constexpr std::uint32_t kOpenPollMilliseconds = 100;
constexpr std::uint32_t kConversionPollMilliseconds = 1000;

/// Gives back what it set on every way out.
class FlagWhile {
 public:
  explicit FlagWhile(std::atomic<bool>& flag) : flag_(flag) { flag_ = true; }
  ~FlagWhile() { flag_ = false; }
  FlagWhile(const FlagWhile&) = delete;
  FlagWhile& operator=(const FlagWhile&) = delete;

 private:
  std::atomic<bool>& flag_;
};

}  // namespace

CAlertConfigApp& TheApp() {
  static CAlertConfigApp app;
  return app;
}

bool CAlertConfigApp::InitInstance(std::function<void()> clean_up) {
  stores_ready_ = false;
  clean_up_ = std::move(clean_up);
  if (!open_lock_) open_lock_ = std::make_unique<std::mutex>();
  return true;
}

void CAlertConfigApp::ExitInstance() {
  open_lock_.reset();
  clean_up_ = nullptr;
}

bool CAlertConfigApp::CreateStores() {
  StoreSet& stores = TheStores();
  return stores.ForEach([&stores](auto& store) {
    using Store = typename std::remove_reference_t<decltype(store)>::element_type;
    if constexpr (std::is_same_v<Store, CAlertSERV_MODEMDB>) {
      const bool types = &store == &stores.modem_types;
      store.reset(types ? new (std::nothrow) Store(kModemTypeFile) : new (std::nothrow) Store());
    } else {
      store.reset(new (std::nothrow) Store());
    }
    return true;
  });
}

bool CAlertConfigApp::OpenEachStore() {
  return TheStores().ForEach([](auto& store) { return store != nullptr && store->DBOpen() == kOk; });
}

std::uint32_t CAlertConfigApp::OpenStores() {
  const platform::ModuleScope scope(TheModule());
  if (!open_lock_) return kStoresFailed;  // not loaded yet, or unloaded
  const std::lock_guard<std::mutex> lock(*open_lock_);
  if (stores_open_) return kStoresWereOpen;
  const FlagWhile opening(open_in_progress_);
  const platform::ui::WaitCursor wait;
  CreateStores();
  if (!OpenEachStore()) return kStoresFailed;
  stores_open_ = true;
  return kStoresOpened;
}

void CAlertConfigApp::WaitWhileOpening() const {
  while (open_in_progress_) platform::ui::Desktop::Current().Sleep(kOpenPollMilliseconds);
}

void CAlertConfigApp::CloseStores() {
  WaitWhileOpening();
  TheStores().ForEach([](auto& store) {
    store.reset();
    return true;
  });
  while (TheCompanions().dbconfig->IsConversionComplete() == 0)
    platform::ui::Desktop::Current().Sleep(kConversionPollMilliseconds);
  if (clean_up_) clean_up_();
  stores_open_ = false;
}

void CAlertConfigApp::EnsureStoresOpen() {
  WaitWhileOpening();
  if (stores_ready_) return;
  CloseStores();
  OpenStores();
  stores_ready_ = true;
}

}  // namespace alerting
