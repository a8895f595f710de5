// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <map>
#include <random>

#include "platform/base/descriptor.h"
#include "platform/base/utc_time.h"
#include "tests/server/test_site.h"
#include "tests/support/program.h"

namespace fs = std::filesystem;
using test_support::Json;
using test_support::Program;
using test_support::ReadFile;
using test_support::Until;
using testing::AllOf;
using testing::HasSubstr;

namespace {

class ServerKilled : public testing::Test {
 protected:
  void SetUp() override {
    site_.AddService("program-launch", 14);
    site_.response.subject.Assign("/bin/true");
  }
  /// The alert server, with a log of its own.
  std::vector<std::string> Server(std::vector<std::string> more = {}) const {
    std::vector<std::string> words{ALERTSERVER, "--data", site_.Data(), "--manager", test_support::kManager};
    words.insert(words.end(), more.begin(), more.end());
    return words;
  }
  /// The program of the tests becomes a script.
  void UseScript(const std::string& lines) {
    const std::string script = site_.Data() + "/script";
    test_support::WriteFile(script, "#!/bin/sh\n" + lines);
    fs::permissions(script, fs::perms::owner_all);
    site_.response.subject.Assign(script);
  }
  const test_support::TemporaryDirectory elsewhere_;
  const std::string log_ = elsewhere_.Path() + "/log", sent_ = elsewhere_.Path() + "/sent";
  test_support::TestSite site_;
};

/// How often a file was put in place under each name: a report that is written a second time leaves no other trace.
class Arrivals {
 public:
  explicit Arrivals(const std::string& directory) : watch_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    EXPECT_GE(inotify_add_watch(watch_.Get(), directory.c_str(), IN_MOVED_TO), 0);
  }
  int Of(const std::string& path) {
    Read();
    return counts_[fs::path(path).filename()];
  }

 private:
  void Read() {
    alignas(inotify_event) char block[65536];
    for (ssize_t count; (count = read(watch_.Get(), block, sizeof block)) > 0;)
      for (ssize_t at = 0; at < count;) {
        const auto* event = reinterpret_cast<const inotify_event*>(block + at);
        EXPECT_EQ(event->mask & IN_Q_OVERFLOW, 0U);
        if (event->len > 0) ++counts_[event->name];
        at += static_cast<ssize_t>(sizeof *event + event->len);
      }
  }

  platform::Descriptor watch_;
  std::map<std::string, int> counts_;
};

std::size_t Count(const std::string& text, const std::string& what) {
  std::size_t found = 0;
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += what.size()) ++found;
  return found;
}

/// Two servers share the jobs, and die at any moment from their start to the end of what they send.
TEST_F(ServerKilled, NoJobIsLostAndNoneAnsweredTwice) {
  using Clock = std::chrono::steady_clock;
  constexpr std::uint32_t kMoments = 100;
  UseScript("echo \"begin $1.\" >>" + sent_ + "\nsleep 0.02\necho \"end $1.\" >>" + sent_ + "\n");
  // A busy machine takes its time: no job is to be too old.
  site_.sent_at = platform::ToUtcText(std::chrono::system_clock::now() + std::chrono::minutes(30));
  Arrivals arrivals(site_.Spool());
  std::uint32_t job = 0;
  const auto write_job = [&] {
    site_.response.message.Assign(std::to_string(++job));
    site_.WriteJob(job);
  };
  // How long the whole life of a server with one job is.
  Clock::duration life{};
  for (int i = 0; i < 3; ++i) {
    const auto start = Clock::now();
    Program server(Server(), log_);
    write_job();
    ASSERT_TRUE(Until([&] { return fs::exists(site_.ReportPath(job)) && !site_.HasJob(job); }));
    life = std::max(life, Clock::now() - start);
  }
  std::mt19937 random(20240607);
  const auto moment_of = [&](Clock::duration longest) {
    return std::chrono::nanoseconds(random() % static_cast<std::uint64_t>(longest.count()));
  };
  for (std::uint32_t moment = 0; moment < kMoments; ++moment) {
    Program first(Server(), log_), second(Server(), log_);
    write_job();
    std::this_thread::sleep_for(moment_of(life));
    first.End(SIGKILL);
    std::this_thread::sleep_for(moment_of(life / 2));
    second.End(SIGKILL);
  }
  const std::string log = ReadFile(log_);
  const std::size_t taken = Count(log, ": taken"), told = Count(log, ": verdict"),
                    begun = Count(ReadFile(sent_), "begin");
  std::printf("taken %zu times, begun %zu, answered %zu before the last server\n", taken, begun, told);
  EXPECT_GT(taken, told + 10) << "too few servers died while they sent";
  EXPECT_GT(told, 10U) << "the moments are too early to say anything";
  EXPECT_LT(told, job) << "the moments are too late to say anything";

  Program last(Server(), log_);
  for (std::uint32_t one = 1; one <= job; ++one) {
    const std::string number = std::to_string(one) + ".";
    EXPECT_TRUE(Until([&] { return !site_.HasJob(one); })) << one << " is lost";
    EXPECT_EQ(site_.Report(one).value("verdict", ""), "delivered") << one;
    EXPECT_THAT(ReadFile(sent_), AllOf(HasSubstr("begin " + number), HasSubstr("end " + number)));
  }
  EXPECT_EQ(last.End(SIGTERM), 0) << "a server that is asked to stop ends well";
  for (std::uint32_t one = 1; one <= job; ++one)
    EXPECT_EQ(arrivals.Of(site_.ReportPath(one)), 1) << "answers to job " << one;
}

TEST_F(ServerKilled, FilesThatAreNoJobsAreRefusedInTheLogAndKeepNobodyWaiting) {
  std::map<std::uint32_t, const char*> refused = {
      {1, "damaged"}, {2, "longer than"}, {3, "of a version"}, {4, "symbolic link"}};
  Program server(Server(), log_);
  Json other = site_.JobJson(3);
  other["version"] = 2;
  site_.WriteJob(1, "no job");
  site_.WriteJob(2, std::string(300'000, ' '));
  site_.WriteJob(3, other.dump());
  fs::create_symlink("/etc/passwd", site_.JobPath(4));
  if (geteuid() == 0) {  // nobody else can give files away
    refused[5] = "another account";
    const std::string given_away = site_.Spool() + "/given-away";
    test_support::WriteFile(given_away, site_.JobJson(5).dump());
    EXPECT_EQ(chown(given_away.c_str(), 12345, 12345), 0);
    fs::rename(given_away, site_.JobPath(5));
  }
  site_.WriteJob(6);
  EXPECT_TRUE(Until([&] { return fs::exists(site_.ReportPath(6)); }));
  for (const auto& [job, why] : refused)
    EXPECT_TRUE(Until([&] { return fs::exists(site_.ReportPath(job)); })) << why;
  server.End(SIGTERM);
  for (const auto& [job, why] : refused) {
    const std::string line = "job " + std::to_string(job) + ": refused, because ";
    EXPECT_EQ(Count(ReadFile(log_), line), 1U) << ReadFile(log_);
    EXPECT_THAT(site_.Report(job).value("explanation", ""), HasSubstr(why));
  }
}

TEST_F(ServerKilled, StopsBehindTheRunningJobsWhichDoNotWaitForEachOther) {
  UseScript("echo on >> " + sent_ + "\nsleep 1\n");
  Program server(Server(), log_);
  site_.WriteJob(1);
  site_.WriteJob(2);
  ASSERT_TRUE(Until([&] { return ReadFile(sent_) == "on\non\n"; }));
  EXPECT_FALSE(fs::exists(site_.ReportPath(1)) || fs::exists(site_.ReportPath(2)));
  EXPECT_EQ(server.End(SIGTERM), 0);
  for (const std::uint32_t job : {1, 2}) {
    EXPECT_EQ(site_.Report(job).value("verdict", ""), "delivered");
    EXPECT_FALSE(site_.HasJob(job));
  }
}

TEST_F(ServerKilled, OnceTakesOneJobAndItsExitCodeSaysWhatBecameOfIt) {
  const auto once = [&](const char* job) {
    return WEXITSTATUS(Program(Server({"--once", job}), log_).Wait());
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
