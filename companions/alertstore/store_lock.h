// SPDX-License-Identifier: MIT
#pragma once

#include "companions/alertstore/store.h"

namespace alertstore {

/// Holds a store's file lock while it lives. A lock that cannot be had is a failed write to its caller.
class StoreLock {
 public:
  explicit StoreLock(StoreBase& store) : file_(&store.File()), status_(file_->DBFileLock()) {}
  ~StoreLock() { Release(); }
  StoreLock(const StoreLock&) = delete;
  StoreLock& operator=(const StoreLock&) = delete;

  Status Result() const { return status_; }
  void Release() {
    if (file_ != nullptr && status_ == kOk) file_->DBFileUnlock();
    file_ = nullptr;
  }

 private:
  QEVDB* file_;
  Status status_;
};

}  // namespace alertstore
