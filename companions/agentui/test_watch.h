// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "companions/agentui/agentui.h"
#include "companions/agentui/by_test.h"
#include "companions/agentui/corrections.h"
#include "companions/agentui/report.h"
#include "companions/agentui/server_start.h"
#include "companions/alertstore/records_common.h"

namespace agentui {

/// Sends tests to whoever serves the spool, and waits for their reports on a thread of its own, which starts with the
/// first test and sleeps while none is pending.
class TestWatch {
 public:
  using Callback = void (*)(std::uint32_t);

  explicit TestWatch(const TestTimes& times) : times_(times) {}
  /// Ends the thread. Tests that are pending then are reported to nobody.
  ~TestWatch();

  void SetCallback(Callback callback);
  void Send(const alertstore::ALERTRESPREC& record);
  /// Reports that are not in the spool: of tests whose jobs could not be written either.
  const std::shared_ptr<ByTest<Report>>& Unwritten() const { return unwritten_; }
  /// What was tested, which reports do not say.
  const std::shared_ptr<ByTest<TestSubject>>& Subjects() const { return subjects_; }

 private:
  using Clock = std::chrono::steady_clock;
  struct Pending {
    std::uint32_t job;
    /// Where the data directory was when the test was sent.
    std::string spool;
    std::vector<std::string> managers;
    Clock::time_point deadline;
    bool is_over;
  };

  void EnsureThread();
  void StartServer(const std::string& spool, const Job& job);
  std::vector<Pending> PendingNow();
  void Run();
  void LookAt(const Pending& pending);
  void GiveUp(const Pending& pending);
  void KeepReport(const Pending& pending, const Report& report);
  void Tell(std::uint32_t job);

  const TestTimes times_;
  const std::shared_ptr<ByTest<Report>> unwritten_ = std::make_shared<ByTest<Report>>();
  const std::shared_ptr<ByTest<TestSubject>> subjects_ = std::make_shared<ByTest<TestSubject>>();

  std::mutex mutex_;
  std::condition_variable changed_;
  std::vector<Pending> pending_;
  StartedServers servers_;
  Callback callback_ = nullptr;
  bool stopping_ = false;
  std::thread thread_;
};

}  // namespace agentui
