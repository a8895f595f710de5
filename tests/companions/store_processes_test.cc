// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <functional>

#include "companions/alertstore/file_lock.h"
#include "tests/companions/store_fixture.h"

using namespace alertstore;
using platform::GUID;

namespace {

// Another console: a child process that runs `body` and reports its truth. It is started before this process
// has a store open, since a connection must not be used on both sides of a fork.
pid_t StartConsole(const std::function<bool()>& body) {
  const pid_t child = fork();
  if (child == 0) _exit(body() ? 0 : 1);
  return child;
}

bool Succeeded(pid_t child) {
  int status = 0;
  return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void ExpectSuccessOfTwo(const std::function<bool()>& body) {
  for (const pid_t console : {StartConsole(body), StartConsole(body)}) EXPECT_TRUE(Succeeded(console));
}

// One end writes a byte, the other waits for it, for 10 seconds at most.
class Signal {
 public:
  Signal() { EXPECT_EQ(pipe(ends_), 0); }
  ~Signal() {
    close(ends_[0]);
    close(ends_[1]);
  }
  Signal(const Signal&) = delete;
  Signal& operator=(const Signal&) = delete;

  bool Send() const { return write(ends_[1], "x", 1) == 1; }
  bool Wait() const {
    pollfd end{ends_[0], POLLIN, 0};
    char byte = 0;
    return poll(&end, 1, 10000) == 1 && read(ends_[0], &byte, 1) == 1;
  }

 private:
  int ends_[2];
};

class StoreProcessesTest : public StoreTest {
 protected:
  ~StoreProcessesTest() override { FileLock::SetWaitLimit(limit_before_); }

  // One service; the database is closed again.
  static GUID AddServiceAndClose() { return AddNamed(*std::make_unique<Services>(), "shared"); }

 private:
  const std::chrono::milliseconds limit_before_ = FileLock::WaitLimit();
};

// Tells when it has the lock, and keeps it until it is told.
bool HoldLock(const Signal& locked, const Signal& done) {
  CAlertNtfyServDB services;
  return services.DBOpen() == kOk && services.File().DBFileLock() == kOk && locked.Send() && done.Wait();
}

bool CountUp(const GUID& id, int times) {
  CAlertNtfyServDB services;
  if (services.DBOpen() != kOk) return false;
  for (int i = 0; i < times; ++i) {
    auto record = Named<ALRTNTFYSERV>("", id);
    if (services.File().DBFileLock() != kOk) return false;
    const bool counted = services.DBAlertRecRetrieve(id, record) == kOk &&
                         (record.enabled = record.enabled + 1, services.DBAlertRecUpdate(record) == kOk);
    if (services.File().DBFileUnlock() != kOk || !counted) return false;
  }
  return true;
}

TEST_F(StoreProcessesTest, TwoConsolesThatCountUnderTheLockLoseNothing) {
  const GUID id = AddServiceAndClose();
  constexpr int kTimes = 1000;
  ExpectSuccessOfTwo([&] { return CountUp(id, kTimes); });

  Services services;
  EXPECT_EQ(Stored(services, id).enabled, 2u * kTimes);
}

TEST_F(StoreProcessesTest, TwoConsolesThatAddWithoutALockBothSucceed) {
  const auto add_many = [] {
    CAlertNtfyServDB services;
    if (services.DBOpen() != kOk) return false;  // both make the database
    for (int i = 0; i < 200; ++i)
      if (Add(services, ALRTNTFYSERV{}, ALRTMHSSERVICEREC{}) != kOk) return false;
    return true;
  };
  ExpectSuccessOfTwo(add_many);
}

TEST_F(StoreProcessesTest, ALockHeldElsewhereEndsTheWaitWithAStatus) {
  AddServiceAndClose();
  Signal locked, done;
  const pid_t holder = StartConsole([&] { return HoldLock(locked, done); });
  ASSERT_TRUE(locked.Wait());
  Services services;
  Opened<CAlertRespDB> responses;
  FileLock::SetWaitLimit(std::chrono::milliseconds(50));
  EXPECT_EQ(services.File().DBFileLock(), kLockTimeout);
  EXPECT_EQ(services.File().DBFileUnlock(), kNotLocked);
  EXPECT_EQ(responses.File().DBFileLock(), kOk) << "every store has a lock of its own";
  AddNamed(services, "not locked out");

  FileLock::SetWaitLimit(std::chrono::seconds(10));
  EXPECT_TRUE(done.Send());
  EXPECT_EQ(services.File().DBFileLock(), kOk) << "waits until the holder has gone";
  EXPECT_TRUE(Succeeded(holder));
}

TEST_F(StoreProcessesTest, AKilledHolderFreesItsLock) {
  AddServiceAndClose();
  Signal locked, never;
  const pid_t holder = StartConsole([&] { return HoldLock(locked, never); });
  ASSERT_TRUE(locked.Wait());
  ASSERT_EQ(kill(holder, SIGKILL), 0);
  Services services;
  EXPECT_EQ(services.File().DBFileLock(), kOk);
  waitpid(holder, nullptr, 0);
}

// A child inherits its parent's open files. Were the lock among them, it would outlive the parent's unlock.
TEST_F(StoreProcessesTest, AChildDoesNotInheritTheLock) {
  Services services;
  ASSERT_EQ(services.File().DBFileLock(), kOk);
  Signal done;
  const pid_t child = StartConsole([&] { return done.Wait(); });
  ASSERT_EQ(services.File().DBFileUnlock(), kOk);

  Services again;
  FileLock::SetWaitLimit(std::chrono::milliseconds(50));
  EXPECT_EQ(again.File().DBFileLock(), kOk);
  EXPECT_TRUE(done.Send());
  EXPECT_TRUE(Succeeded(child));
}

// Whoever tidies the directory up must not give the lock to two consoles.
TEST_F(StoreProcessesTest, ALockFileThatIsTakenAwayKeepsOthersOut) {
  Services one, two;
  FileLock::SetWaitLimit(std::chrono::milliseconds(50));
  ASSERT_EQ(one.File().DBFileLock(), kOk);
  std::filesystem::remove(directory_ + "/alerting.lock");
  EXPECT_EQ(two.File().DBFileLock(), kLockTimeout);
  EXPECT_EQ(one.File().DBFileUnlock(), kOk);
  EXPECT_EQ(two.File().DBFileLock(), kOk);
}

TEST_F(StoreProcessesTest, StoreObjectsOfOneProcessLockEachOtherOut) {
  Services one;
  FileLock::SetWaitLimit(std::chrono::milliseconds(50));
  {
    Services two;
    EXPECT_EQ(two.File().DBFileLock(), kOk);
    EXPECT_EQ(two.File().DBFileLock(), kAlreadyLocked);
    EXPECT_EQ(one.File().DBFileLock(), kLockTimeout);
  }
  EXPECT_EQ(one.File().DBFileLock(), kOk) << "the lock went with its store object";
  EXPECT_EQ(one.File().DBFileUnlock(), kOk);
  EXPECT_EQ(one.File().DBFileUnlock(), kNotLocked);
}

}  // namespace
