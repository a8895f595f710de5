// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace alertserver {

/// The lock file by which programs that dial keep out of each other's way: "LCK..ttyS0" in the system's directory of locks,
/// with the number of the process that has the port (Filesystem Hierarchy Standard 3.0, 5.9). It goes with its object.
class LineLock {
 public:
  /// Of a device, in a directory of locks.
  LineLock(const std::string& device, const std::string& directory);
  ~LineLock();
  LineLock(const LineLock&) = delete;
  LineLock& operator=(const LineLock&) = delete;

  /// Number of the process that has the port; 0 where no other has. A lock that cannot be made for want of a right to the
  /// directory keeps nobody from the port: the line is opened exclusively besides.
  int Holder() const { return holder_; }

 private:
  bool Make();
  void MakeOverDead();

  const std::string path_;
  int holder_ = 0;
  bool is_ours_ = false;
};

}  // namespace alertserver
