// SPDX-License-Identifier: MIT
#include "companions/agentui/test_watch.h"

#include <atomic>
#include <exception>
#include <filesystem>
#include <set>

#include "companions/agentui/delivering_managers.h"
#include "companions/agentui/spool.h"
#include "companions/agentui/test_request.h"
#include "companions/alertstore/problem.h"

namespace agentui {
namespace {

bool HasReport(const std::string& spool, std::uint32_t job) {
  std::error_code ignored;
  return std::filesystem::exists(ReportPath(spool, job), ignored);
}

/// Fills in who delivers, and writes the job. Answers what went wrong, or "".
std::string HandOver(const std::string& spool, Job& job) {
  const auto read = ReadDeliveringManagers(job.record.serviceId, job.managers);
  if (read != alertstore::kOk) return alertstore::ProblemText(read);
  return WriteJob(spool, job);
}

}  // namespace

TestWatch::~TestWatch() {
  {
    const std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  changed_.notify_all();
  if (thread_.joinable()) thread_.join();
}

void TestWatch::SetCallback(Callback callback) {
  const std::lock_guard lock(mutex_);
  callback_ = callback;
}

namespace {

std::atomic<std::uint32_t> g_last_test{0};

}  // namespace

void TestWatch::Send(const alertstore::ALERTRESPREC& record) {
  const std::string spool = SpoolDirectory();
  EnsureThread();
  std::set<std::uint32_t> waited_for;
  for (const Pending& pending : PendingNow()) waited_for.insert(pending.job);
  CleanSpool(spool, waited_for);
  Job job{NewJobNumber(spool), {}, record};
  subjects_->Keep(job.number, {record.serviceId, record.userId});
  const std::string problem = HandOver(spool, job);
  const auto wait = IsPager(record.serviceRecordType) ? times_.pager_answer : times_.answer;
  const Pending sent{job.number, spool, job.managers, Clock::now() + wait, !problem.empty()};
  if (sent.is_over) KeepReport(sent, NotHandedOverReport(problem));
  {
    const std::lock_guard lock(mutex_);
    pending_.push_back(sent);
  }
  changed_.notify_all();
  if (!sent.is_over) StartServer(spool, job);
  g_last_test = job.number;
}

std::uint32_t LastTest() { return g_last_test; }

void TestWatch::StartServer(const std::string& spool, const Job& job) {
  const std::lock_guard lock(mutex_);
  servers_.StartWhereNeeded(spool, job);
}

void TestWatch::EnsureThread() {
  const std::lock_guard lock(mutex_);
  if (!thread_.joinable()) thread_ = std::thread([this] { Run(); });
}

std::vector<TestWatch::Pending> TestWatch::PendingNow() {
  const std::lock_guard lock(mutex_);
  return pending_;
}

void TestWatch::Run() {
  std::unique_lock lock(mutex_);
  while (!stopping_) {
    if (pending_.empty())
      changed_.wait(lock, [this] { return stopping_ || !pending_.empty(); });
    else
      changed_.wait_for(lock, times_.look);
    servers_.TakeNote();
    lock.unlock();
    try {
      for (const Pending& pending : PendingNow()) LookAt(pending);
    } catch (const std::exception&) {
      // No memory. What is pending is looked at again.
    }
    lock.lock();
  }
}

void TestWatch::LookAt(const Pending& pending) {
  const bool is_late = Clock::now() >= pending.deadline;
  if (pending.is_over || HasReport(pending.spool, pending.job)) return Tell(pending.job);
  if (!is_late) return;
  GiveUp(pending);
  Tell(pending.job);
}

/// Takes the job back before the last look for a report, so that no server begins with it behind that look.
void TestWatch::GiveUp(const Pending& pending) {
  std::error_code ignored;
  std::filesystem::remove(JobPath(pending.spool, pending.job), ignored);
  if (!HasReport(pending.spool, pending.job)) KeepReport(pending, UnansweredReport(pending.managers));
}

void TestWatch::KeepReport(const Pending& pending, const Report& report) {
  if (!WriteReport(ReportPath(pending.spool, pending.job), pending.job, report))
    unwritten_->Keep(pending.job, report);
}

/// Calls outside the lock: the callback may send another test.
void TestWatch::Tell(std::uint32_t job) {
  Callback callback = nullptr;
  {
    const std::lock_guard lock(mutex_);
    std::erase_if(pending_, [job](const Pending& pending) { return pending.job == job; });
    if (!stopping_) callback = callback_;
  }
  if (callback != nullptr) callback(job);
}

}  // namespace agentui
