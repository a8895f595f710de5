// SPDX-License-Identifier: MIT
#include "console/alertctl/store_watch.h"

#include <utility>

#include "companions/alertstore/guarded.h"
#include "companions/alertstore/problem.h"

namespace alertctl {
namespace {

using namespace alertstore;  // NOLINT: the engine's own words
using WatchPtr = std::shared_ptr<StoreWatch>;

class WatchedTable : public Table {
 public:
  WatchedTable(std::unique_ptr<Table> base, WatchPtr watch, const std::string& store)
      : base_(std::move(base)),
        watch_(std::move(watch)),
        reading_("reading " + store),
        adding_("adding a record to " + store),
        changing_("changing a record in " + store),
        deleting_("deleting a record in " + store),
        locking_("locking " + store) {}

  Status FindFirst(const Selector& selector, std::string_view key, void* out) override {
    return watch_->NoteRead(base_->FindFirst(selector, key, out), reading_);
  }
  Status FindFirst(void* out) override { return watch_->NoteRead(base_->FindFirst(out), reading_); }
  Status FindNext(void* out) override { return watch_->NoteRead(base_->FindNext(out), reading_); }
  Status Retrieve(const platform::GUID& id, void* out) override {
    return watch_->NoteRead(base_->Retrieve(id, out), reading_);
  }
  Status Add(const void* record) override { return watch_->NoteWrite(base_->Add(record), adding_); }
  Status AddPair(const void* record, const StoreSchema& other, const void* other_record) override {
    return watch_->NoteWrite(base_->AddPair(record, other, other_record), adding_);
  }
  Status Update(const void* record) override { return watch_->NoteWrite(base_->Update(record), changing_); }
  Status Delete(const platform::GUID& id) override { return watch_->NoteWrite(base_->Delete(id), deleting_); }
  Status Lock() override { return watch_->NoteWrite(base_->Lock(), locking_); }
  Status Unlock() override { return base_->Unlock(); }

 private:
  const std::unique_ptr<Table> base_;
  const WatchPtr watch_;
  const std::string reading_, adding_, changing_, deleting_, locking_;
};

class WatchedEngine : public Engine {
 public:
  WatchedEngine(std::shared_ptr<Engine> base, WatchPtr watch)
      : base_(std::move(base)), watch_(std::move(watch)) {}

  Status Open(const StoreSchema& schema, std::unique_ptr<Table>& table) override {
    return Guarded([&] {
      std::unique_ptr<Table> opened;
      const Status status = watch_->NoteWrite(base_->Open(schema, opened), "opening " + schema.file);
      if (status == kOk) table = std::make_unique<WatchedTable>(std::move(opened), watch_, schema.file);
      return status;
    });
  }
  Status BeginRead() override { return watch_->NoteRead(base_->BeginRead(), "reading the stores"); }
  void EndRead() override { base_->EndRead(); }

 private:
  const std::shared_ptr<Engine> base_;
  const WatchPtr watch_;
};

}  // namespace

Status StoreWatch::NoteRead(Status status, const std::string& doing) {
  return status == kNotFound || status == kEndOfScan ? status : NoteWrite(status, doing);
}

Status StoreWatch::NoteWrite(Status status, const std::string& doing) {
  if (status == kOk || failure_ != kOk) return status;
  cause_ = ProblemText(status) + " (" + doing + ")";
  return failure_ = status;
}

std::shared_ptr<Engine> WatchEngine(std::shared_ptr<Engine> base, WatchPtr watch) {
  return std::make_shared<WatchedEngine>(std::move(base), std::move(watch));
}

}  // namespace alertctl
