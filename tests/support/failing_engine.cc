// SPDX-License-Identifier: MIT
#include "tests/support/failing_engine.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace test_support {

using alertstore::kOk;
using alertstore::Selector;
using alertstore::Status;
using alertstore::StoreSchema;
using alertstore::Table;

std::string_view NameOf(StoreOp op) {
  constexpr std::string_view kNames[] = {"Open", "FindFirst", "FindNext",  "Retrieve",
                                         "Add",  "AddPair",   "Update",    "Delete",
                                         "Lock", "Unlock",    "BeginRead", "Any"};
  return kNames[static_cast<std::size_t>(op)];
}

namespace {

bool Matches(const StoreCall& call, std::string_view store, StoreOp op) {
  return (store == kAnyStore || store == call.store) && (op == StoreOp::kAny || op == call.op);
}

}  // namespace

template <class Operation>
Status FailingEngine::Make(StoreCall call, Operation operation) {
  call.status = MustFail(call) ? alertstore::kIoError : operation();
  calls_.push_back(std::move(call));
  return calls_.back().status;
}

bool FailingEngine::MustFail(const StoreCall& call) {
  if (!rule_.active || !Matches(call, rule_.store, rule_.op)) return false;
  if (rule_.remaining > 0) {
    if (--rule_.remaining > 0) return false;
    rule_.active = false;
  }
  ++failures_;
  return true;
}

void FailingEngine::Fail(Rule rule) {
  rule_ = std::move(rule);
  failures_ = 0;
}

std::vector<StoreCall> FailingEngine::Writes() const {
  std::vector<StoreCall> writes;
  std::ranges::copy_if(calls_, std::back_inserter(writes), [](const StoreCall& call) {
    return call.status == kOk && call.op >= StoreOp::kAdd && call.op <= StoreOp::kDelete;
  });
  return writes;
}

int FailingEngine::Count(std::string_view store, StoreOp op) const {
  return static_cast<int>(
      std::ranges::count_if(calls_, [&](const StoreCall& call) { return Matches(call, store, op); }));
}

std::vector<std::string> FailingEngine::HeldLocks() const {
  std::vector<std::string> held;
  for (const auto& [store, count] : locks_)
    if (count > 0) held.push_back(store);
  return held;
}

// A table of the engine below, whose calls pass through the rule of the engine.
class FailingTable : public Table {
 public:
  FailingTable(FailingEngine& engine, std::string store, std::unique_ptr<Table> base)
      : engine_(engine), store_(std::move(store)), base_(std::move(base)) {}
  ~FailingTable() override {
    NoteUnlocked();
    engine_.closed_.push_back(store_);
  }

  Status FindFirst(const Selector& selector, std::string_view key, void* out) override {
    return engine_.Make(Call(StoreOp::kFindFirst), [&] { return base_->FindFirst(selector, key, out); });
  }
  Status FindFirst(void* out) override {
    return engine_.Make(Call(StoreOp::kFindFirst), [&] { return base_->FindFirst(out); });
  }
  Status FindNext(void* out) override {
    return engine_.Make(Call(StoreOp::kFindNext), [&] { return base_->FindNext(out); });
  }
  Status Retrieve(const platform::GUID& id, void* out) override {
    return engine_.Make(Call(StoreOp::kRetrieve), [&] { return base_->Retrieve(id, out); });
  }
  Status Add(const void* record) override {
    return engine_.Make(Call(StoreOp::kAdd), [&] { return base_->Add(record); });
  }
  Status AddPair(const void* record, const StoreSchema& other, const void* other_record) override {
    return engine_.Make(Call(StoreOp::kAddPair), [&] { return base_->AddPair(record, other, other_record); });
  }
  Status Update(const void* record) override {
    return engine_.Make(Call(StoreOp::kUpdate), [&] { return base_->Update(record); });
  }
  Status Delete(const platform::GUID& id) override {
    return engine_.Make(Call(StoreOp::kDelete), [&] { return base_->Delete(id); });
  }

  Status Lock() override {
    const Status status = engine_.Make(Call(StoreOp::kLock), [&] { return base_->Lock(); });
    if (status != kOk) return status;
    locked_ = true;
    ++engine_.locks_[store_];
    return kOk;
  }
  Status Unlock() override {
    const Status released = base_->Unlock();
    if (released == kOk) NoteUnlocked();
    return engine_.Make(Call(StoreOp::kUnlock), [&] { return released; });
  }

 private:
  StoreCall Call(StoreOp op) const { return {store_, op, kOk}; }
  void NoteUnlocked() {
    if (std::exchange(locked_, false)) --engine_.locks_[store_];
  }

  FailingEngine& engine_;  // outlives its tables, as every engine does: the store keeps it
  const std::string store_;
  const std::unique_ptr<Table> base_;
  bool locked_ = false;
};

Status FailingEngine::Open(const StoreSchema& schema, std::unique_ptr<Table>& table) {
  return Make({schema.file, StoreOp::kOpen, kOk}, [&] {
    std::unique_ptr<Table> opened;
    const Status status = base_->Open(schema, opened);
    if (status == kOk) table = std::make_unique<FailingTable>(*this, schema.file, std::move(opened));
    return status;
  });
}

Status FailingEngine::BeginRead() {
  return Make({{}, StoreOp::kBeginRead, kOk}, [&] { return base_->BeginRead(); });
}

}  // namespace test_support
