// SPDX-License-Identifier: MIT
// Several of them, and consoles, on one data directory at once.
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "companions/alertstore/console_users.h"
#include "tests/console/alertctl_fixture.h"

using namespace alertstore;
using nlohmann::json;
using testing::HasSubstr;

namespace {

std::size_t CountOf(const std::vector<Ran>& ran, int code) {
  std::size_t count = 0;
  for (const Ran& one : ran) count += one.code == code ? 1u : 0u;
  return count;
}

TEST_F(AlertctlTest, SeveralInitsAtOnceMakeOneSite) {
  const auto ran = RunTogether(std::vector<Arguments>(6, {"init", "--json"}));
  std::size_t changed = 0;
  for (const Ran& one : ran) {
    ASSERT_EQ(one.code, 0) << one.err;
    changed += json::parse(one.out)["changed"] == true ? 1u : 0u;
  }
  EXPECT_EQ(changed, 1u);
  const json managers = RunJson({"manager", "list"});
  ASSERT_EQ(managers.size(), 1u);
  EXPECT_EQ(managers[0]["services"].size(), 13u);
}

TEST_F(AlertctlSiteTest, TheSameChangeMadeSeveralTimesAtOnceLeavesNoDoubles) {
  RunJson({"user", "add", "Ann"});
  const auto entries =
      RunTogether(std::vector<Arguments>(5, {"entry", "set", "Ann", "Internet Mail", "ann@example.org"}));
  EXPECT_EQ(CountOf(entries, 0), 5u);
  EXPECT_EQ(RunJson({"entry", "list"}).size(), 1u);

  const auto copies = RunTogether(std::vector<Arguments>(5, {"service", "copy", "Internet Mail", "Twin"}));
  EXPECT_EQ(CountOf(copies, 0), 1u);
  EXPECT_EQ(CountOf(copies, 4), 4u);
  EXPECT_EQ(RunJson({"service", "list"}).size(), 14u);

  RunJson({"service", "disable", "Twin"});
  EXPECT_EQ(CountOf(RunTogether(std::vector<Arguments>(5, {"service", "enable", "Twin"})), 0), 5u);
  EXPECT_EQ(RunJson({"service", "show", "Twin"})["alertManagers"].size(), 1u);
}

TEST_F(AlertctlSiteTest, AUserWhoGetsAnEntryIsNotRemoved) {
  for (int round = 0; round < 5; ++round) {
    RunJson({"user", "add", "Bob"});
    const auto ran =
        RunTogether({{"entry", "set", "Bob", "Internet Mail", "b@example.org"}, {"user", "remove", "Bob"}});
    const bool removed = ran[1].code == 0;
    EXPECT_EQ(ran[0].code, removed ? 3 : 0) << ran[0].err;
    EXPECT_EQ(RunJson({"entry", "list"}).size(), removed ? 0u : 1u);
    if (removed) continue;
    RunJson({"entry", "remove", "Bob", "Internet Mail"});
    RunJson({"user", "remove", "Bob"});
  }
}

TEST_F(AlertctlSiteTest, AnEntryThatAConsoleIsAddingIsChangedNotAddedAgain) {
  RunJson({"user", "add", "Ann"});
  std::vector<ConsoleUser> users;
  ASSERT_EQ(ListConsoleUsers(users), kOk);
  CAlertNtfyServDB services;
  const ALRTNTFYSERV mail = Find(services, [](const ALRTNTFYSERV& s) { return s.recordType == 5; });

  CAlertUSR_SMTPDB entries;
  ASSERT_EQ(Opened(entries).File().DBFileLock(), kOk);
  std::thread other([&] { Run({"entry", "set", "Ann", "Internet Mail", "new@example.org"}); });
  std::this_thread::sleep_for(std::chrono::milliseconds(1000));  // it has come to the lock by then
  ALRTUSR_SMTPSERVICEREC entry{};
  entry.userId = users.front().id;
  ALRTUSRINSTSERV link{};
  link.userId = users.front().id;
  link.serviceId = mail.serviceId;
  link.recordType = 5;
  platform::GUID id{}, entry_id{};
  CAlertUsrInstServDB links;
  EXPECT_EQ(Opened(links).DBAlertRecAdd(link, id, entry, entry_id), kOk);
  EXPECT_EQ(entries.File().DBFileUnlock(), kOk);
  other.join();
  const json listed = RunJson({"entry", "list"});
  ASSERT_EQ(listed.size(), 1u);
  EXPECT_EQ(listed[0]["address"], "new@example.org");
}

/// Holds the lock of a file as another process would.
class HeldFile {
 public:
  explicit HeldFile(const std::string& path) : file_(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
    EXPECT_EQ(flock(file_, LOCK_EX | LOCK_NB), 0);
  }
  ~HeldFile() { close(file_); }
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;

 private:
  const int file_;
};

TEST_F(AlertctlSiteTest, WhoeverWaitedTooLongSaysForWhomAndChangesNothing) {
  RunJson({"user", "add", "Ann"});
  const std::string other_data = root_ + "/other";
  std::filesystem::copy(data_, other_data);
  setenv("ALERTING_DATA", other_data.c_str(), 1);
  CAlertUSR_SMTPDB entries;
  ASSERT_EQ(Opened(entries).File().DBFileLock(), kOk);
  setenv("ALERTING_DATA", data_.c_str(), 1);

  const HeldFile another_alertctl(data_ + "/alertctl.lock");
  const HeldFile another_console(data_ + "/alert-managers.json.lock");
  EXPECT_EQ(Run({"user", "list"}).code, 0) << "reading waits for nobody";
  const auto ran = RunTogether({{"user", "add", "Bob"},
                                {"config", "write"},
                                {"entry", "set", "Ann", "Internet Mail", "a@b.c", "--data", other_data}});
  for (const Ran& one : ran) EXPECT_EQ(one.code, 5) << one.out;
  EXPECT_THAT(ran[0].err, HasSubstr("another alertctl is changing this data directory; try again"));
  EXPECT_THAT(ran[1].err, HasSubstr("another console is writing the file; try again"));
  EXPECT_THAT(ran[2].err, HasSubstr("another console keeps the store locked; try again"));
  EXPECT_EQ(RunJson({"user", "list"}).size(), 1u);
  EXPECT_FALSE(std::filesystem::exists(data_ + "/alert-managers.json"));
}

}  // namespace
