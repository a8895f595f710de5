// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace test_support {

/// A program by its whole path, as a process of its own that goes with this object. What it says goes behind what is in
/// the file `log`.
class Program {
 public:
  explicit Program(std::vector<std::string> words, const std::string& log = "/dev/null") {
    std::vector<char*> pointers;
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    posix_spawn_file_actions_adddup2(&actions, 1, 2);
    EXPECT_EQ(posix_spawn(&pid_, pointers.front(), &actions, nullptr, pointers.data(), environ), 0)
        << words.front();
    posix_spawn_file_actions_destroy(&actions);
  }
  ~Program() {
    if (pid_ > 0) End(SIGKILL);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// The status with which it ended.
  int End(int signal) {
    kill(pid_, signal);
    return Wait();
  }
  int Wait() {
    int status = 0;
    waitpid(std::exchange(pid_, 0), &status, 0);
    return status;
  }

 private:
  pid_t pid_ = 0;
};

/// Whether something becomes so while somebody waits for it.
inline bool Until(const std::function<bool()>& is_so,
                  std::chrono::milliseconds limit = std::chrono::seconds(20)) {
  using Clock = std::chrono::steady_clock;
  for (const auto end = Clock::now() + limit; Clock::now() < end;) {
    if (is_so()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return is_so();
}

}  // namespace test_support
