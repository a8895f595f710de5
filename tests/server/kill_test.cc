// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <set>
#include <thread>

#include "tests/server/test_site.h"

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

/// An alert server as a program of its own. What it says goes to a file.
class ServerProgram {
 public:
  ServerProgram(const test_support::TestSite& site, const std::string& log,
                std::vector<std::string> more = {}) {
    std::vector<std::string> words{ALERTSERVER, "--data", site.Data(), "--manager", test_support::kManager};
    words.insert(words.end(), more.begin(), more.end());
    std::vector<char*> pointers;
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 2, log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    EXPECT_EQ(posix_spawn(&pid_, ALERTSERVER, &actions, nullptr, pointers.data(), environ), 0);
    posix_spawn_file_actions_destroy(&actions);
  }
  ~ServerProgram() {
    if (pid_ > 0) End(SIGKILL);
  }
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

bool Until(const std::function<bool()>& is_so, milliseconds limit = std::chrono::seconds(20)) {
  for (const auto end = steady_clock::now() + limit; steady_clock::now() < end;) {
    if (is_so()) return true;
    std::this_thread::sleep_for(milliseconds(2));
  }
  return is_so();
}

class ServerKilled : public testing::Test {
 protected:
  void SetUp() override {
    site_.AddService("program-launch", 14);
    site_.response.subject.Assign("/bin/true");
  }
  const std::string log_ = testing::TempDir() + "/server-log-" + std::to_string(getpid());
  test_support::TestSite site_;
};

/// Tells files with one name apart: a report that is written twice is another file.
struct Seen {
  ino_t inode;
  timespec written;
};

TEST_F(ServerKilled, NoJobIsLostAndNoneAnsweredTwice) {
  constexpr std::uint32_t kMoments = 100;
  std::mt19937 random(20240607);
  std::map<std::uint32_t, Seen> answered;
  const auto look = [&](std::uint32_t last) {
    for (std::uint32_t job = 1; job <= last; ++job) {
      struct stat found {};
      if (stat(site_.ReportPath(job).c_str(), &found) != 0) continue;
      const auto [known, is_new] = answered.try_emplace(job, Seen{found.st_ino, found.st_mtim});
      EXPECT_EQ(known->second.inode, found.st_ino) << "job " << job << " was answered twice";
      EXPECT_EQ(known->second.written.tv_nsec, found.st_mtim.tv_nsec) << "job " << job;
    }
  };
  std::uint32_t job = 0;
  for (std::uint32_t moment = 0; moment < kMoments; ++moment) {
    ServerProgram first(site_, log_), second(site_, log_);
    for (int i = 0; i < 2; ++i) site_.WriteJob(++job);
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 40'000));
    first.End(SIGKILL);
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 10'000));
    second.End(SIGKILL);
    look(job);
  }
  const std::size_t before = answered.size();
  ServerProgram last(site_, log_);
  EXPECT_TRUE(Until([&] { return answered.size() == job || (look(job), answered.size() == job); }))
      << answered.size() << " of " << job;
  EXPECT_TRUE(Until([&] { return !site_.HasJob(job) && !site_.HasJob(1); }));
  look(job);
  EXPECT_EQ(last.End(SIGTERM), 0) << "a server that is asked to stop ends well";
  for (std::uint32_t one = 1; one <= job; ++one) EXPECT_FALSE(site_.HasJob(one)) << one;
  EXPECT_GT(before, 10u) << "the moments are too early to say anything";
  EXPECT_LT(before, job) << "the moments are too late to say anything";
}

TEST_F(ServerKilled, StopsBehindTheRunningJobsWhichDoNotWaitForEachOther) {
  const std::string begun = site_.Data() + "/begun";
  test_support::WriteFile(site_.Data() + "/slow", "#!/bin/sh\necho on >> " + begun + "\nsleep 1\n");
  fs::permissions(site_.Data() + "/slow", fs::perms::owner_all);
  site_.response.subject.Assign(site_.Data() + "/slow");
  ServerProgram server(site_, log_);
  site_.WriteJob(1);
  site_.WriteJob(2);
  ASSERT_TRUE(Until([&] { return test_support::ReadFile(begun) == "on\non\n"; }));
  EXPECT_FALSE(fs::exists(site_.ReportPath(1)) || fs::exists(site_.ReportPath(2)));
  EXPECT_EQ(server.End(SIGTERM), 0);
  for (const std::uint32_t job : {1, 2}) {
    EXPECT_EQ(site_.Report(job).value("verdict", ""), "delivered");
    EXPECT_FALSE(site_.HasJob(job));
  }
}

TEST_F(ServerKilled, OnceTakesOneJobAndItsExitCodeSaysWhatBecameOfIt) {
  const auto once = [&](const char* job) {
    return WEXITSTATUS(ServerProgram(site_, log_, {"--once", job}).Wait());
  };
  site_.WriteJob(1);
  site_.WriteJob(2);
  EXPECT_EQ(once("2"), 0);
  EXPECT_TRUE(site_.HasJob(1));
  EXPECT_FALSE(site_.HasJob(2));
  EXPECT_EQ(once("3"), 3);
  site_.managers = {"OTHER"};
  site_.WriteJob(5);
  EXPECT_EQ(once("5"), 3) << "another manager's";
  site_.WriteJob(4, "no job");
  EXPECT_EQ(once("4"), 4);
  EXPECT_EQ(once("0"), 2);
  fs::permissions(site_.Spool(), fs::perms::all);
  EXPECT_EQ(once("1"), 5) << "others can write to the spool";
  fs::permissions(site_.Spool(), fs::perms::owner_all);
}

}  // namespace
