// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace dbconfig {

/// Keeps the other consoles from writing the configuration file while it lives, so that none of them puts an
/// older reading of the stores over a newer one. The lock ends with the process.
class ConfigLock {
 public:
  /// Waits five seconds at most.
  explicit ConfigLock(const std::string& path);
  ~ConfigLock();
  ConfigLock(const ConfigLock&) = delete;
  ConfigLock& operator=(const ConfigLock&) = delete;

  bool Held() const { return held_; }

 private:
  int file_;
  bool held_;
};

}  // namespace dbconfig
