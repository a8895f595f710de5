// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "companions/alertstore/status.h"

namespace alertstore {

/// A lock between processes, and between objects of one process: one byte of a lock file, held by an open
/// file description. It ends with the object, with the process however that ends, and is not passed to child
/// processes. A lock file that is taken away while the lock is held keeps others out all the same: whoever finds none
/// waits until nobody holds a lock before it makes another.
class FileLock {
 public:
  /// `name` tells the locks of one lock file apart.
  FileLock(std::string path, std::string_view name);
  ~FileLock() { Release(); }
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

  /// Waits while another holds the lock, for WaitLimit() at most: kLockTimeout. kAlreadyLocked when this
  /// object holds it, another failure when the
  /// lock file cannot be made or is refused.
  Status Acquire();
  /// kNotLocked when this object does not hold the lock.
  Status Release();

  /// How long Acquire waits, in the whole process: 5 seconds until it is set.
  static std::chrono::milliseconds WaitLimit();
  static void SetWaitLimit(std::chrono::milliseconds limit);

 private:
  Status Open(std::chrono::steady_clock::time_point deadline);
  Status MakeFile(std::chrono::steady_clock::time_point deadline);
  void Close();

  const std::string path_;
  const long owner_byte_;  // the byte after it is the place of the one who is next in line
  int file_ = -1;
  int directory_ = -1;  // open, and locked for shared use, for as long as the lock is held
};

}  // namespace alertstore
