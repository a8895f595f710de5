// SPDX-License-Identifier: MIT
#include "companions/dbconfig/config_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>

namespace dbconfig {
namespace {

bool LockWithin(int file, std::chrono::milliseconds limit) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  while (flock(file, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return false;
    if (std::chrono::steady_clock::now() >= deadline) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}

}  // namespace

ConfigLock::ConfigLock(const std::string& path)
    : file_(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)),
      held_(file_ >= 0 && LockWithin(file_, std::chrono::seconds(5))) {}

ConfigLock::~ConfigLock() {
  if (file_ >= 0) close(file_);
}

}  // namespace dbconfig
