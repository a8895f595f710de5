// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "companions/alertstore/engine.h"

namespace test_support {

enum class StoreOp {
  kOpen,
  kFindFirst,
  kFindNext,
  kRetrieve,
  kAdd,
  kAddPair,
  kUpdate,
  kDelete,
  kLock,
  kUnlock,
  kBeginRead,
  kAny,  ///< in a rule: each of them
};

std::string_view NameOf(StoreOp op);

/// In a rule: every store. Stores bear the names of their files ("NtfyServDB.dat"), Schema().file of the
/// store object.
inline constexpr std::string_view kAnyStore = "";

/// One call that reached the engine.
struct StoreCall {
  std::string store;  ///< empty for kBeginRead
  StoreOp op;
  alertstore::Status status;
};

/// Hands every call to another engine, except those that it was told to fail; these change nothing, but a
/// failing Unlock gives the lock back all the same. Made current with alertstore::SetEngine before the stores
/// are opened.
///
///   auto engine = std::make_shared<FailingEngine>(alertstore::CurrentEngine());
///   for (int n = 1;; ++n) {        // fails each call of a sequence in turn
///     engine->FailNth(kAnyStore, StoreOp::kAny, n);
///     RunTheSequence();
///     if (engine->Failures() == 0) break;
///     EXPECT_THAT(engine->HeldLocks(), IsEmpty());
///   }
class FailingEngine : public alertstore::Engine {
 public:
  explicit FailingEngine(std::shared_ptr<alertstore::Engine> base) : base_(std::move(base)) {}

  // Each rule replaces the one before it and sets Failures() to 0.

  /// Fails the n-th matching call from now on, counted from 1, and no other.
  void FailNth(std::string_view store, StoreOp op, int n) { Fail({std::string(store), op, n, n > 0}); }
  /// Fails every matching call from now on.
  void FailAll(std::string_view store, StoreOp op) { Fail({std::string(store), op, 0, true}); }
  void FailNone() { Fail({}); }

  /// How many calls the present rule has failed.
  int Failures() const { return failures_; }

  /// Every call since the engine was made or Forget was called, failed ones included.
  const std::vector<StoreCall>& Calls() const { return calls_; }
  /// The adds, updates and deletes among them that succeeded.
  std::vector<StoreCall> Writes() const;
  int Count(std::string_view store, StoreOp op) const;
  void Forget() { calls_.clear(); }
  /// The stores whose table was given back, in that order.
  const std::vector<std::string>& Closed() const { return closed_; }

  /// The stores whose lock is held now.
  std::vector<std::string> HeldLocks() const;

  alertstore::Status Open(const alertstore::StoreSchema& schema,
                          std::unique_ptr<alertstore::Table>& table) override;
  alertstore::Status BeginRead() override;
  void EndRead() override { base_->EndRead(); }

 private:
  friend class FailingTable;

  struct Rule {
    std::string store;
    StoreOp op = StoreOp::kAny;
    int remaining = 0;  // matching calls until the one that fails; 0: every one fails
    bool active = false;
  };

  // Makes the call, or fails it, and notes it.
  template <class Operation>
  alertstore::Status Make(StoreCall call, Operation operation);
  void Fail(Rule rule);
  bool MustFail(const StoreCall& call);

  const std::shared_ptr<alertstore::Engine> base_;
  Rule rule_;
  int failures_ = 0;
  std::vector<StoreCall> calls_;
  std::vector<std::string> closed_;
  std::map<std::string, int> locks_;
};

}  // namespace test_support
