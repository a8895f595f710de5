// SPDX-License-Identifier: MIT
// Sites, arguments and surroundings that are not as they should be.
#include "companions/alertstore/console_users.h"
#include "tests/console/alertctl_fixture.h"

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

TEST_F(AlertctlSiteTest, TextsThatNobodyCouldReadAreRefusedAndNeverEchoed) {
  RunJson({"user", "add", "Ann"});
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
  CAlert_SRV_CFGDB managers;
  ALRT_SRV_CFGREC twin = Find(managers, Any);
  GUID id{};
  twin.guid = platform::kNullGuid;
  ASSERT_EQ(managers.DBAlertRecAdd(twin, id), kOk);
  EXPECT_THAT(Run({"service", "enable", "Internet Mail"}), Fails(4, HasSubstr("name it by its identity")));
  EXPECT_THAT(Run({"service", "enable", "Internet Mail", "--manager", id.ToString()}),
              Fails(4, HasSubstr("disable it there first")));
  RunJson({"service", "disable", "Internet Mail"});
  EXPECT_EQ(RunJson({"service", "enable", "Internet Mail", "--manager", id.ToString()})["changed"], true);
  EXPECT_EQ(RunJson({"manager", "list"})[1]["services"], json::array({"Internet Mail"}));
}

TEST_F(AlertctlSiteTest, SettingAnEntryPrintsWhatIsStored) {
  RunJson({"user", "add", "Ann"});
  RunJson({"entry", "set", "Ann", "MCI Mail", "123-4567"});
  CAlertUSR_MCIDB users;
  ALRTUSR_MCISERVICEREC stored = Find(users, Any);
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
      EXPECT_THAT(RunLine(CommandOf(verb) + elsewhere), Fails(5, HasSubstr("cannot write the output")))
          << elsewhere;
    }
  }
  EXPECT_EQ(std::filesystem::file_size(data_ + "/alertctl.lock"), 0u);
  EXPECT_EQ(RunLine(CommandOf({"service", "show", "x"}) + " >&- 2>&-").code, 3);
}

TEST_F(AlertctlSiteTest, WhatShowsNoConfigurationFileSaysWhatIsThere) {
  const std::string file = data_ + "/alert-managers.json";
  std::filesystem::create_directories(file + ".lock");
  EXPECT_THAT(Run({"config", "write"}), Fails(5, Not(HasSubstr("before")))) << "there was no file before";
  std::filesystem::remove(file + ".lock");

  std::filesystem::create_directories(file);
  EXPECT_THAT(Run({"config", "show"}), Fails(5, HasSubstr("directory")));
  std::filesystem::remove(file);
  for (const char* bytes : {"{\"password\": \"x\"}", "[]", "{"}) {
    WriteFile(file, bytes);
    EXPECT_THAT(Run({"config", "show", "--json"}),
                Fails(4, AllOf(HasSubstr(file), HasSubstr("config write"))))
        << bytes;
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
                Fails(4, HasSubstr(library)));
  }
}

}  // namespace
