// SPDX-License-Identifier: MIT
#include "console/alertctl_store_watch.h"

#include <utility>

#include "companions/alertstore/guarded.h"

namespace alertctl {
namespace {

using namespace alertstore;  // NOLINT: the engine's own words
using WatchPtr = std::shared_ptr<StoreWatch>;

class WatchedTable : public Table {
 public:
  WatchedTable(std::unique_ptr<Table> base, WatchPtr watch)
      : base_(std::move(base)), watch_(std::move(watch)) {}

  Status FindFirst(const Selector& selector, std::string_view key, void* out) override {
    return watch_->NoteRead(base_->FindFirst(selector, key, out));
  }
  Status FindFirst(void* out) override { return watch_->NoteRead(base_->FindFirst(out)); }
  Status FindNext(void* out) override { return watch_->NoteRead(base_->FindNext(out)); }
  Status Retrieve(const platform::GUID& id, void* out) override {
    return watch_->NoteRead(base_->Retrieve(id, out));
  }
  Status Add(const void* record) override { return watch_->NoteWrite(base_->Add(record)); }
  Status AddPair(const void* record, const StoreSchema& other, const void* other_record) override {
    return watch_->NoteWrite(base_->AddPair(record, other, other_record));
  }
  Status Update(const void* record) override { return watch_->NoteWrite(base_->Update(record)); }
  Status Delete(const platform::GUID& id) override { return watch_->NoteWrite(base_->Delete(id)); }
  Status Lock() override { return watch_->NoteWrite(base_->Lock()); }
  Status Unlock() override { return base_->Unlock(); }

 private:
  const std::unique_ptr<Table> base_;
  const WatchPtr watch_;
};

class WatchedEngine : public Engine {
 public:
  WatchedEngine(std::shared_ptr<Engine> base, WatchPtr watch)
      : base_(std::move(base)), watch_(std::move(watch)) {}

  Status Open(const StoreSchema& schema, std::unique_ptr<Table>& table) override {
    return Guarded([&] {
      std::unique_ptr<Table> opened;
      const Status status = watch_->NoteWrite(base_->Open(schema, opened));
      if (status == kOk) table = std::make_unique<WatchedTable>(std::move(opened), watch_);
      return status;
    });
  }
  Status BeginRead() override { return watch_->NoteRead(base_->BeginRead()); }
  void EndRead() override { base_->EndRead(); }

 private:
  const std::shared_ptr<Engine> base_;
  const WatchPtr watch_;
};

}  // namespace

Status StoreWatch::NoteRead(Status status) {
  return status == kNotFound || status == kEndOfScan ? status : NoteWrite(status);
}

Status StoreWatch::NoteWrite(Status status) {
  if (failure_ == kOk) failure_ = status;
  return status;
}

std::shared_ptr<Engine> WatchEngine(std::shared_ptr<Engine> base, WatchPtr watch) {
  return std::make_shared<WatchedEngine>(std::move(base), std::move(watch));
}

}  // namespace alertctl
