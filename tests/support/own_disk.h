// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <string>

namespace test_support {

/// Runs `body` in a child process in which `directory` is a small disk of its own, 256 KiB unless told. Passes when the
/// body answers true; skipped where this account may not mount.
inline void OnOwnDisk(const std::string& directory, const std::function<bool()>& body,
                      const char* size = "256k") {
  constexpr int kCannotMount = 77;
  const pid_t child = fork();
  if (child == 0) {
    const bool mounted =
        unshare(CLONE_NEWNS) == 0 && mount("", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
        mount("disk", directory.c_str(), "tmpfs", 0, (std::string("mode=0700,size=") + size).c_str()) == 0;
    _exit(!mounted ? kCannotMount : body() ? 0 : 1);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  if (WIFEXITED(status) && WEXITSTATUS(status) == kCannotMount)
    GTEST_SKIP() << "this account may not mount a disk";
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

/// Makes a disk that was mounted so read-only.
inline bool MakeReadOnly(const std::string& directory) {
  return mount("", directory.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}

}  // namespace test_support
