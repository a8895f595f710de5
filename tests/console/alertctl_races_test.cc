// SPDX-License-Identifier: MIT
// Several of them, and consoles, on one data directory at once.
#include "companions/alertstore/console_users.h"
#include "platform/base/process_lock.h"
#include "tests/console/alertctl_fixture.h"

using namespace alertstore;
using nlohmann::json;
using testing::HasSubstr;

namespace {

std::ptrdiff_t CountOf(const std::vector<Ran>& ran, int code) {
  return std::ranges::count(ran, code, &Ran::code);
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

TEST_F(AlertctlUserTest, TheSameChangeMadeSeveralTimesAtOnceLeavesNoDoubles) {
  const auto entries =
      RunTogether(std::vector<Arguments>(5, {"entry", "set", "Ann", "Internet Mail", "ann@example.org"}));
  EXPECT_EQ(CountOf(entries, 0), 5);
  EXPECT_EQ(RunJson({"entry", "list"}).size(), 1u);

  const auto copies = RunTogether(std::vector<Arguments>(5, {"service", "copy", "Internet Mail", "Twin"}));
  EXPECT_EQ(CountOf(copies, 0), 1);
  EXPECT_EQ(CountOf(copies, 4), 4);
  EXPECT_EQ(RunJson({"service", "list"}).size(), 14u);

  RunJson({"service", "disable", "Twin"});
  EXPECT_EQ(CountOf(RunTogether(std::vector<Arguments>(5, {"service", "enable", "Twin"})), 0), 5);
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

TEST_F(AlertctlUserTest, AnEntryThatAConsoleIsAddingIsChangedNotAddedAgain) {
  std::vector<ConsoleUser> users;
  ASSERT_EQ(ListConsoleUsers(users), kOk);
  const auto mail = Opened<CAlertNtfyServDB>().Find([](const auto& s) { return s.recordType == 5; });

  Opened<CAlertUSR_SMTPDB> entries;
  ASSERT_EQ(entries.File().DBFileLock(), kOk);
  std::thread other([&] { Run({"entry", "set", "Ann", "Internet Mail", "new@example.org"}); });
  std::this_thread::sleep_for(std::chrono::milliseconds(1000));  // it has come to the lock by then
  ALRTUSR_SMTPSERVICEREC entry{};
  entry.userId = users.front().id;
  ALRTUSRINSTSERV link{};
  link.userId = users.front().id;
  link.serviceId = mail.serviceId;
  link.recordType = 5;
  platform::GUID id{}, entry_id{};
  EXPECT_EQ(Opened<CAlertUsrInstServDB>().DBAlertRecAdd(link, id, entry, entry_id), kOk);
  EXPECT_EQ(entries.File().DBFileUnlock(), kOk);
  other.join();
  const json listed = RunJson({"entry", "list"});
  ASSERT_EQ(listed.size(), 1u);
  EXPECT_EQ(listed[0]["address"], "new@example.org");
}

TEST_F(AlertctlUserTest, WhoeverWaitedTooLongSaysForWhomAndChangesNothing) {
  const std::string other_data = root_ + "/other";
  std::filesystem::copy(data_, other_data);
  setenv("ALERTING_DATA", other_data.c_str(), 1);
  Opened<CAlertUSR_SMTPDB> entries;
  ASSERT_EQ(entries.File().DBFileLock(), kOk);
  setenv("ALERTING_DATA", data_.c_str(), 1);

  std::filesystem::remove(data_ + "/alert-managers.json");
  const std::chrono::seconds wait(1);
  const platform::ProcessLock alertctl(data_ + "/alertctl.lock", wait),
      console(data_ + "/alert-managers.json.lock", wait);
  EXPECT_EQ(Run({"user", "list"}).code, 0) << "reading waits for nobody";
  const auto ran = RunTogether({{"user", "add", "Bob"},
                                {"config", "write"},
                                {"entry", "set", "Ann", "Internet Mail", "a@b.c", "--data", other_data}});
  for (const Ran& one : ran) EXPECT_EQ(one.code, 5) << one.out;
  EXPECT_THAT(ran[0].err, HasSubstr("another alertctl is changing this data directory; try again"));
  EXPECT_THAT(ran[1].err, HasSubstr("another console is writing the file; try again"));
  EXPECT_THAT(ran[2].err, HasSubstr("another console keeps the store locked"));
  EXPECT_EQ(RunJson({"user", "list"}).size(), 1u);
  EXPECT_FALSE(std::filesystem::exists(data_ + "/alert-managers.json"));
}

}  // namespace
