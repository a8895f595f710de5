// SPDX-License-Identifier: MIT
// Sites, arguments and surroundings that are not as they should be.
#include <sys/stat.h>
#include <unistd.h>

#include "companions/alertstore/console_users.h"
#include "console/site/backup_manager.h"
#include "console/site/managers.h"
#include "tests/console/alertctl_fixture.h"
#include "tests/support/raw_database.h"

using namespace alertstore;
using nlohmann::json;
using platform::GUID;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

void WriteFile(const std::string& path, const std::string& bytes) {
  ASSERT_TRUE(platform::WriteFileAtomically(path, bytes, 0600));
}

TEST_F(AlertctlTest, OnlyVerbsThatAddMakeADataDirectory) {
  for (const bool is_there : {false, true}) {
    if (is_there) std::filesystem::create_directories(data_);
    for (const Arguments& verb : {Arguments{"service", "list"},
                                  {"service", "show", "x"},
                                  {"service", "disable", "x"},
                                  {"user", "list"},
                                  {"entry", "list"},
                                  {"manager", "list"},
                                  {"response", "list"},
                                  {"config", "write"}}) {
      EXPECT_THAT(Run(verb),
                  Fails(3, AllOf(HasSubstr("there is no data in " + data_), HasSubstr("alertctl init"))))
          << testing::PrintToString(verb);
      EXPECT_EQ(std::filesystem::exists(data_), is_there);
      EXPECT_TRUE(!is_there || std::filesystem::is_empty(data_)) << testing::PrintToString(verb);
    }
  }
}

TEST_F(AlertctlUserTest, TextsThatNobodyCouldReadAreRefusedAndNeverEchoed) {
  for (const char* text : {"\x1B[31mred", "two\nlines", "broken \xFF byte", "\x7F", "csi \xC2\x9B", "   "}) {
    for (const Arguments& verb : {Arguments{"user", "add", text},
                                  {"service", "copy", "Internet Mail", text},
                                  {"entry", "set", "Ann", "Internet Mail", text}}) {
      const Ran ran = Run(verb);
      EXPECT_THAT(ran, Fails(4, testing::ContainsRegex("control characters|blanks")))
          << testing::PrintToString(verb);
      EXPECT_EQ(ran.err.find_first_of("\x1B\x7F\x9B\xFF"), std::string::npos) << ran.err;
    }
  }
  EXPECT_EQ(RunJson({"user", "list"}).size(), 1u);
  EXPECT_THAT(Run({"\x1B[31m"}).err, Not(HasSubstr("\x1B")));
  EXPECT_THAT(Run({"service", "list", "--\x1B[31m"}).err, Not(HasSubstr("\x1B")));
}

TEST_F(AlertctlSiteTest, StoredControlCharactersAreNotPrinted) {
  ASSERT_EQ(AddConsoleUser(GUID::Generate(), "a\x1B\x7F\xC2\x9Bz\u00E9"), kOk);
  const std::string listed = Run({"user", "list"}).out, raw = Run({"user", "list", "--json"}).out;
  EXPECT_THAT(listed, HasSubstr("a   z\u00E9"));
  EXPECT_EQ(raw.find_first_of("\x1B\x7F\x9B"), std::string::npos) << raw;
  EXPECT_EQ(json::parse(raw)[0]["name"], "a\x1B\x7F\xC2\x9Bz\u00E9") << "the name itself is told whole";
}

TEST_F(AlertctlSiteTest, AServiceWithoutItsRecordIsNotCopiedAndDisturbsNoOther) {
  DeleteFirst<CAlertWAVENtfyServDB>();
  const std::string before = ConfigFile();
  EXPECT_THAT(Run({"service", "copy", "Wave File", "New"}),
              Fails(4, AllOf(HasSubstr("\"Wave File\""), HasSubstr("missing"))));
  EXPECT_EQ(ConfigFile(), before);
  EXPECT_THAT(Run({"service", "disable", "Internet Mail"}).err, IsEmpty());
  EXPECT_EQ(Run({"service", "copy", "Program Launch Service", "New"}).code, 0)
      << "this type has no such record";
}

TEST_F(AlertctlSiteTest, ManagersOfOneNameAreToldApartByIdentity) {
  Opened<CAlert_SRV_CFGDB> managers;
  ALRT_SRV_CFGREC twin = managers.First();
  const GUID id = test_support::AddRecord(managers, twin);
  EXPECT_THAT(Run({"service", "enable", "Internet Mail"}), Fails(4, "name it by its identity"));
  EXPECT_THAT(Run({"service", "enable", "Internet Mail", "--manager", id.ToString()}),
              Fails(4, "disable it there first"));
  RunJson({"service", "disable", "Internet Mail"});
  EXPECT_EQ(RunJson({"service", "enable", "Internet Mail", "--manager", id.ToString()})["changed"], true);
  EXPECT_EQ(RunJson({"manager", "list"})[1]["services"], json::array({"Internet Mail"}));
}

TEST_F(AlertctlUserTest, SettingAnEntryPrintsWhatIsStored) {
  RunJson({"entry", "set", "Ann", "MCI Mail", "123-4567"});
  Opened<CAlertUSR_MCIDB> users;
  ALRTUSR_MCISERVICEREC stored = users.First();
  stored.emsEnabled = 1;
  stored.emsAddress.Assign("elsewhere");
  ASSERT_EQ(users.DBAlertRecUpdate(stored), kOk);
  json set = RunJson({"entry", "set", "Ann", "MCI Mail", "765-4321"});
  EXPECT_EQ(set["emsEnabled"], true);
  EXPECT_EQ(set["emsAddress"], "elsewhere");
  EXPECT_EQ(set, RunJson({"entry", "list"})[0]);
}

TEST_F(AlertctlSiteTest, OutputThatCannotBeWrittenIsAFailure) {
  for (const char* elsewhere : {" >&-", " >/dev/full"}) {
    for (const Arguments& verb : {Arguments{"service", "list"}, {"service", "list", "--help"}}) {
      EXPECT_THAT(RunLine(CommandOf(verb) + elsewhere), Fails(5, "cannot write the output")) << elsewhere;
    }
  }
  EXPECT_EQ(std::filesystem::file_size(data_ + "/alertctl.lock"), 0u);
  EXPECT_EQ(RunLine(CommandOf({"service", "show", "x"}) + " >&- 2>&-").code, 3);
}

TEST_F(AlertctlSiteTest, WhatShowsNoConfigurationFileSaysWhatIsThere) {
  const std::string file = data_ + "/alert-managers.json";
  std::filesystem::remove(file);
  std::filesystem::remove(file + ".lock");
  EXPECT_THAT(Run({"config", "show"}), Fails(3, "config write"));
  std::filesystem::create_directories(file + ".lock");
  EXPECT_THAT(Run({"config", "write"}), Fails(5, Not(HasSubstr("before")))) << "there was no file before";
  std::filesystem::remove(file + ".lock");

  std::filesystem::create_directories(file);
  EXPECT_THAT(Run({"config", "show"}), Fails(5, "directory"));
  std::filesystem::remove(file);
  const std::pair<std::string, const char*> rows[] = {
      {"{\"password\": \"x\"}", "of this version"},
      {"[]", "damaged"},
      {"{", "damaged"},
      {"{\"a\":" + std::string(12000, '[') + std::string(12000, ']') + "}", "damaged"}};
  for (const auto& [bytes, says] : rows) {
    WriteFile(file, bytes);
    EXPECT_THAT(Run({"config", "show", "--json"}),
                Fails(4, AllOf(HasSubstr(file), HasSubstr("config write"), HasSubstr(says))))
        << bytes.substr(0, 20);
  }
}

TEST_F(AlertctlTest, AWrongPathInTheEnvironmentIsNamed) {
  EXPECT_THAT(RunLine("ALERTING_RESOURCES=/no/such/place " + CommandOf({"init"})),
              Fails(4, AllOf(HasSubstr("ALERTING_RESOURCES"), HasSubstr("/no/such/place"))));
  RunJson({"init"});
  const std::filesystem::path program = ALERTCTL;
  const std::string other = (program.parent_path() / "../lib/libalertplatform.so").lexically_normal();
  for (const std::string& library : {other, std::string("/no/such/library.so")}) {
    EXPECT_THAT(RunLine("ALERTING_LIBRARY=" + library + " " + CommandOf({"service", "delete", "Wave File"})),
                Fails(4, library));
  }
}

TEST_F(AlertctlSiteTest, ADamagedRecordIsToldAndHidesNoOther) {
  test_support::RawDatabase(data_).Ask(
      "UPDATE \"NtfyServDB.dat\" SET record=substr(record,1,2279) WHERE id=4");
  const Ran ran = Run({"service", "list", "--json"});
  EXPECT_EQ(ran.code, 0);
  EXPECT_EQ(json::parse(ran.out).size(), 12u);
  EXPECT_THAT(ran.err, HasSubstr("1 record in NtfyServDB.dat"));
  EXPECT_EQ(Run({"config", "write"}).code, 0);
}

// The library does not look at the second of two deletes.
TEST_F(AlertctlUserTest, WhatALaterWriteFailedToDoIsToldAfterASuccess) {
  RunJson({"entry", "set", "Ann", "Internet Mail", "ann@example.org"});
  RunJson({"service", "copy", "Internet Mail", "Night mail"});
  for (const char* table : {"InstNtfyServDB.dat", "UsrInstServDB.dat"})
    test_support::RawDatabase(data_).Ask("CREATE TRIGGER \"refuse " + std::string(table) +
                                         "\" BEFORE DELETE ON \"" + table +
                                         "\" BEGIN SELECT RAISE(ABORT,'no'); END");
  EXPECT_THAT(
      Run({"service", "delete", "Night mail"}),
      Fails(5, AllOf(HasSubstr("deleted the service \"Night mail\", but"), HasSubstr("InstNtfyServDB.dat"))));
  EXPECT_THAT(Run({"entry", "remove", "Ann", "Internet Mail"}),
              Fails(5, AllOf(HasSubstr("removed the entry"), HasSubstr("UsrInstServDB.dat"))));
}

TEST_F(AlertctlSiteTest, ADirectoryThatOthersCanWriteIsRefusedWithWhatToDo) {
  const std::string what = "chmod go-w " + data_;
  chmod(data_.c_str(), 0777);
  for (const Arguments& verb : {Arguments{"service", "list"}, {"init"}, {"config", "write"}})
    EXPECT_THAT(Run(verb), Fails(5, what)) << testing::PrintToString(verb);
}

TEST_F(AlertctlTest, WhatTheAdministratorsAccountMakesBelongsToTheDirectorysOwner) {
  if (geteuid() != 0) GTEST_SKIP() << "only the system administrator's account gives files away";
  std::filesystem::create_directories(data_);
  std::filesystem::permissions(data_, std::filesystem::perms::owner_all);
  ASSERT_EQ(chown(data_.c_str(), 1234, 1234), 0);
  RunJson({"init"});
  RunJson({"user", "add", "Ann"});
  RunJson({"entry", "set", "Ann", "Internet Mail", "ann@example.org"});
  RunJson({"config", "write"});
  EXPECT_EQ(RunLine("find " + data_ + " ! -user 1234").out, "");
  EXPECT_THAT(RunLine("ls -A " + data_).out,
              AllOf(HasSubstr("alerting.lock"), HasSubstr("alert-managers.json")));
}

TEST_F(AlertctlTest, ARelativeDataDirectoryIsToldAsAWhole) {
  EXPECT_EQ(RunJson({"init", "--data", "here"})["directory"], root_ + "/here");
  EXPECT_EQ(RunJson({"config", "write", "--data", "here"})["path"], root_ + "/here/alert-managers.json");
}

TEST_F(AlertctlSiteTest, ABackupIsPutBackUnderAConsoleAtWork) {
  Opened<CAlertNtfyServDB> console;
  const auto count = [&] { return test_support::RecordsOf(console, kByIdentity).size(); };
  const std::string before = ConfigFile();
  const json backup = RunJson({"backup", "site.db"});
  EXPECT_FALSE(std::filesystem::exists(root_ + "/site.db-wal"));
  RunJson({"service", "copy", "Internet Mail", "New"});
  EXPECT_EQ(count(), 14u);
  EXPECT_EQ(RunJson({"restore", "site.db"})["records"], backup["records"]);
  EXPECT_EQ(count(), 13u);
  EXPECT_EQ(ConfigFile(), before);
  EXPECT_EQ(RunJson({"backup", "site.db"})["records"], backup["records"]) << "over the older one";
}

TEST_F(AlertctlSiteTest, ADamagedDatabaseMakesRoomForABackup) {
  const std::string before = ConfigFile();
  RunJson({"backup", "site.db"});
  std::filesystem::remove(data_ + "/alerting.db-wal");
  std::filesystem::resize_file(data_ + "/alerting.db", 100);
  for (const Arguments& verb : {Arguments{"user", "list"}, {"init"}, {"config", "write"}})
    EXPECT_EQ(Run(verb).code, 5) << testing::PrintToString(verb);
  WriteFile(data_ + "/alerting.db", std::string(100000, 'x'));
  EXPECT_THAT(Run({"service", "list"}), Fails(5, "alertctl restore FILE"));
  EXPECT_EQ(RunJson({"restore", "site.db"})["setAside"], data_ + "/alerting.db.damaged");
  EXPECT_EQ(ConfigFile(), before);
  EXPECT_EQ(std::filesystem::file_size(data_ + "/alerting.db.damaged"), 100000u);
}

TEST_F(AlertctlSiteTest, WhatIsNoBackupIsNeitherReplacedNorPutBack) {
  const std::string letter = root_ + "/letter", before = ConfigFile();
  WriteFile(letter, "Dear Ann");
  EXPECT_THAT(Run({"backup", letter}), Fails(4, "is no backup"));
  EXPECT_THAT(Run({"restore", letter}), Fails(4, "no backup"));
  EXPECT_THAT(Run({"restore", "missing"}), Fails(3, "missing"));
  RunJson({"backup", "site.db"});
  std::filesystem::resize_file(root_ + "/site.db", std::filesystem::file_size(root_ + "/site.db") / 2);
  EXPECT_THAT(Run({"restore", "site.db"}), Fails(4, "damaged"));
  EXPECT_EQ(ConfigFile(), before);
  EXPECT_EQ(std::filesystem::file_size(letter), 8u);
}

TEST_F(AlertctlSiteTest, TheBackupManagerChosenInTheConsoleTakesOverForServicesThatDialOut) {
  platform::GUID standby{};
  ASSERT_EQ(site::AddManager("STANDBY", standby), alertstore::kOk);
  ASSERT_EQ(site::WriteBackupManager(standby), "");
  const json here = RunJson({"manager", "list"})[0]["name"];
  for (const char* service : {"Numeric Pager", "Wave File"}) {
    EXPECT_EQ(Run({"service", "disable", service}).code, 0);
    EXPECT_EQ(Run({"service", "enable", service, "--manager", here}).code, 0);
  }
  EXPECT_EQ(RunJson({"service", "show", "Numeric Pager"})["alertManagers"], json({here, "STANDBY (backup)"}));
  EXPECT_EQ(RunJson({"service", "show", "Wave File"})["alertManagers"], json({here}));
}

}  // namespace
