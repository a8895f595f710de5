// SPDX-License-Identifier: MIT
// What the verbs do that work the windows in a person's place, on the real program.
#include "tests/console/alertctl_fixture.h"

using namespace alertstore;
using nlohmann::json;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr char kSecret[] = "s3cr3t!m";

class AlertctlWindowsTest : public AlertctlUserTest {
 protected:
  std::string SecretFile() {
    const std::string file = root_ + "/secret";
    platform::WriteFileAtomically(file, std::string(kSecret) + "\n", 0600);
    return file;
  }
  /// All that the site is, with every secret.
  std::string Everything() { return ConfigFile() + Run({"modem-type", "list", "--json"}).out; }
  json Service(const char* name) { return RunJson({"service", "show", name}); }
};

TEST_F(AlertctlWindowsTest, SettingsOfAServiceReachItsRecordAndTheManagersFile) {
  RunJson({"service", "set", "Internet Mail", "--server", "mail.example.org", "--subject", "<severity>: 100%",
           "--message", "one\ntwo <User Name>", "--priority", "low"});
  const json mail = Service("Internet Mail");
  EXPECT_EQ(mail["settings"]["smtpServer"], "mail.example.org");
  EXPECT_EQ(mail["defaultMessage"]["subject"]["text"], "%s: 100%");
  EXPECT_EQ(mail["defaultMessage"]["subject"]["keywords"][0]["name"], "<Severity>");
  EXPECT_EQ(mail["defaultMessage"]["body"]["text"], "one\r\ntwo %s");
  EXPECT_EQ(mail["defaultMessage"]["priority"], 2);
  std::string told;
  ASSERT_TRUE(platform::ReadWholeFile(data_ + "/alert-managers.json", told));
  EXPECT_THAT(told, HasSubstr("mail.example.org"));

  RunJson({"modem", "add", "Rack", "--type", "Generic 2400 bps modem", "--location", "main office", "--port",
           "com3"});
  RunJson({"modem", "add", "Spare", "--type", "Generic 9600 bps modem", "--location", "Main office"});
  RunJson({"service", "set", "Alphanumeric Pager", "--provider", "example paging south", "--text-length",
           "99", "--modem", "Rack", "--parity", "none", "--stop-bits", "1.5"});
  RunJson({"service", "set", "Alphanumeric Pager", "--backup", "--modem", "Spare", "--data-bits", "8"});
  const json pager = Service("Alphanumeric Pager");
  EXPECT_EQ(pager["settings"]["providerCompany"], "Example Paging South");
  EXPECT_EQ(pager["settings"]["maxTextLength"], 99);
  EXPECT_EQ(pager["modem"]["modemName"], "Rack");
  EXPECT_EQ(pager["modem"]["parityCode"], 0);
  EXPECT_EQ(pager["modem"]["stopBitsCode"], 1);
  EXPECT_EQ(pager["backupModem"]["modemName"], "Spare");
  EXPECT_EQ(pager["backupModem"]["dataBits"], 8);
}

// Whatever is refused leaves everything as it was, and says one thing.
TEST_F(AlertctlWindowsTest, WhatAWindowRefusesIsRefusedAndStoresNothing) {
  const std::string long_name(300, 'x'), two_lines = root_ + "/two", none = root_ + "/none";
  platform::WriteFileAtomically(two_lines, "a\nb\n", 0600);
  RunJson({"service", "set", "Internet Mail", "--server",
           "first.example"});  // backup records come with the first load
  const std::string before = Everything();
  const std::tuple<Arguments, int, const char*> rows[] = {
      {{"service", "set", "Internet Mail"}, 2, "nothing to change"},
      {{"service", "set", "Internet Mail", "--server", long_name}, 4, "255 bytes at most"},
      {{"service", "set", "Internet Mail", "--server", "a\x1b[31m"}, 4, "control characters"},
      {{"service", "set", "Internet Mail", "--server", "a\xff"}, 4, "UTF-8"},
      {{"service", "set", "Internet Mail", "--server", "a", "--subject", "\u202Ex"}, 4, "control characters"},
      {{"service", "set", "Internet Mail", "--priority", "Highest"}, 4, "choose one of: Urgent, Normal, Low"},
      {{"service", "set", "Internet Mail", "--delay", "1"}, 4, "nothing that --delay could set"},
      {{"service", "set", "Internet Mail", "--backup", "--data-bits", "8"}, 4, "does not dial out"},
      {{"service", "set", "Wave File", "--message", "x"}, 4, "nothing that --message"},
      {{"service", "set", "Numeric Pager", "--delay", "61"}, 4, "between 0 and 60"},
      {{"service", "set", "Numeric Pager", "--message", "12\n3"}, 4, "cannot be entered"},
      {{"service", "set", "Numeric Pager", "--data-bits", "8"}, 4, "modem"},
      {{"service", "set", "Alphanumeric Pager", "--provider", "Nobody"}, 3, "no paging provider"},
      {{"service", "set", "Alphanumeric Pager", "--modem", "Nothing"}, 3, "no modem"},
      {{"service", "set", "Microsoft Mail", "--password-file", two_lines}, 4, "more than one line"},
      {{"service", "set", "Microsoft Mail", "--password-file", none}, 3, "cannot read"},
      {{"service", "set", "Microsoft Mail", "--password-file", "/tmp"}, 5, "directory"},
      {{"service", "set", "Microsoft Mail", "--password-file", "-"}, 4, "is empty"},
      {{"service", "set", "Alphanumeric Pager", "--provider", "Example Paging South", "--text-length", "999"},
       4,
       "between 1"},
      {{"computer", "add", "{5D1F0801-6B52-4C0E-9A37-21C48E7B9D60}"}, 4, "look like an identity"},
      {{"computer", "add", "a\u00ADb"}, 4, "control characters"},
      {{"computer", "add", "\u3000\u00A0"}, 4, "more than blanks"},
      {{"service", "set", "SNMP Trap", "--message", "a\rb"}, 4, "control characters"},
      {{"service", "rename", "Internet Mail", "CC:MAIL"}, 4, "already"},
      {{"service", "rename", "Internet Mail", ""}, 4, "1 to 32 bytes"},
      {{"modem", "add", "A", "--type", "No such", "--location", "Main office"}, 4, "choose one of"},
      {{"modem", "add", "A", "--type", "Generic 2400 bps modem", "--location", "Nowhere"}, 4, "Main office"},
      {{"modem", "add", "A", "--type", "Generic 2400 bps modem", "--location", "Main office", "--dial-prefix",
        long_name},
       4,
       "35 bytes"},
      {{"modem", "add", "A", "--type", "Direct serial line", "--location", "Main office", "--alpha-pager",
        "yes"},
       4,
       "cannot be changed"},
      {{"modem", "add", long_name, "--type", "Direct serial line", "--location", "Main office"},
       4,
       "1 to 64"},
      {{"modem-type", "add", "Generic 2400 bps modem", "--basis", "Direct serial line"}, 4, "same name"},
      {{"modem-type", "add", "B", "--basis", "Direct serial line", "--baud-rate", "2401"}, 4, "2400"},
      {{"location", "add", "Main office"}, 4, "same name"},
      {{"location", "add", "L", "--area-code", "12a"}, 4, "cannot be entered"},
      {{"location", "set", "Main office", "--country", "American Samoa", "--area-code", "1"},
       4,
       "cannot be changed"},
      {{"rules", "set", "--same-area", "nine"}, 4, "cannot be entered"},
      {{"snmp-manager", "add", ""}, 4, "missing"},
      {{"snmp-manager", "add", "192.0.2.1", "--computer", long_name}, 4, "64 bytes"},
      {{"computer", "add", "\u200B"}, 4, "control characters"},
      {{"manager", "add", "-"}, 0, ""},
      {{"manager", "remove", "-"}, 0, ""},
      {{"manager", "set", "nobody", "--name", "x"}, 3, "no alert manager"},
      {{"response", "add", "Internet Mail"}, 4, "--user"},
      {{"response", "add", "Wave File"}, 4, "--file"},
      {{"response", "add", "Wave File", "--subject", "x"}, 4, "nothing that --subject"},
      {{"user", "add", "ANN"}, 4, "--another"},
      {{"entry", "set", "Ann", "Numeric Pager", "call me"}, 4, "cannot be entered"},
      {{"entry", "set", "Ann", "Internet Mail", "a@b.c", "--ems", "yes"}, 4, "nothing that --ems"},
  };
  for (const auto& [arguments, code, says] : rows) {
    const Ran ran = Run(arguments);
    EXPECT_EQ(ran.code, code) << testing::PrintToString(arguments) << ran;
    EXPECT_THAT(ran.err, HasSubstr(says)) << testing::PrintToString(arguments);
    EXPECT_EQ(std::ranges::count(ran.err, '\n'), code == 0 ? 0 : 1) << ran.err;
  }
  EXPECT_TRUE(Everything() == before) << Everything();
}

TEST_F(AlertctlWindowsTest, SecretsComeFromFilesAndStandInNoOutput) {
  const std::string file = SecretFile();
  std::string said;
  const auto run = [&](const Arguments& arguments) {
    const Ran ran = Run(arguments);
    said += ran.out + ran.err;
    return ran.code;
  };
  EXPECT_EQ(run({"--dry-run", "service", "set", "Microsoft Mail", "--password-file", file}), 0);
  EXPECT_EQ(run({"service", "set", "Microsoft Mail", "--login", "alerts", "--password-file", file, "--json"}),
            0);
  EXPECT_EQ(
      run({"service", "set", "Microsoft Mail", "--login", std::string(300, 'l'), "--password-file", file}),
      4);
  EXPECT_EQ(run({"snmp-manager", "add", "192.0.2.7", "--community-file", file}), 0);
  EXPECT_EQ(
      run({"snmp-manager", "set", "192.0.2.7", "--community-file", file, "--address", std::string(99, '1')}),
      4);
  EXPECT_EQ(run({"--dry-run", "--json", "snmp-manager", "remove", "192.0.2.7"}), 0);
  EXPECT_EQ(run({"snmp-manager", "list", "--json"}), 0);
  EXPECT_THAT(said, Not(HasSubstr(kSecret)));
  const std::string told = ConfigFile();
  EXPECT_NE(told.find(kSecret), told.rfind(kSecret)) << "the alert managers need both";
  const std::string too_long = root_ + "/long";
  platform::WriteFileAtomically(too_long, std::string(100, 'p'), 0600);
  EXPECT_THAT(Run({"service", "set", "Microsoft Mail", "--password-file", too_long}),
              Fails(4, AllOf(HasSubstr("bytes at most"), Not(HasSubstr("ppp")))));
}

TEST_F(AlertctlWindowsTest, ADryRunSaysWhatWouldChangeAndChangesNothing) {
  const std::string before = Everything(), temporary = root_ + "/tmp";
  std::filesystem::create_directory(temporary);
  setenv("TMPDIR", temporary.c_str(), 1);
  EXPECT_THAT(Run({"--dry-run", "service", "off", "Internet Mail"}).out,
              HasSubstr("services / Internet Mail / enabled: true -> false"));
  const json copied = RunJson({"service", "copy", "Internet Mail", "Night", "--dry-run"});
  EXPECT_EQ(copied["dryRun"], true);
  std::vector<std::string> what;
  for (const json& change : copied["changes"])
    if (change["what"] == "services / Night") what.push_back(change["after"]["type"]);
  EXPECT_THAT(what, ElementsAre("internet-mail"));
  EXPECT_THAT(Run({"service", "set", "Numeric Pager", "--delay", "61", "--dry-run"}),
              Fails(4, "between 0 and 60"));
  EXPECT_THAT(Run({"user", "remove", "Ann", "--dry-run"}).out, HasSubstr("users / Ann"));
  EXPECT_EQ(RunJson({"user", "add", "Ann", "--another", "--dry-run"})["changes"].size(), 1u);
  EXPECT_THAT(Run({"service", "rename", "Internet Mail", "Net", "--dry-run"}).out,
              HasSubstr("services / Internet Mail / name: \"Internet Mail\" -> \"Net\""));
  EXPECT_EQ(Run({"init", "--dry-run", "--data", root_ + "/other"}).code, 0);
  EXPECT_FALSE(std::filesystem::exists(root_ + "/other"));
  unsetenv("TMPDIR");
  EXPECT_TRUE(std::filesystem::is_empty(temporary)) << "copies of the data hold passwords";
  EXPECT_EQ(Everything(), before);
}

TEST_F(AlertctlWindowsTest, TheManagersFileIsWrittenAfterEachChangeUnlessAskedNotTo) {
  const std::string file = data_ + "/alert-managers.json";
  std::string before, after;
  platform::ReadWholeFile(file, before);
  const Ran silent = Run({"service", "set", "Internet Mail", "--server", "a.example", "--no-write"});
  EXPECT_THAT(silent.out, HasSubstr("config write"));
  EXPECT_EQ(RunJson({"--no-write", "service", "off", "Wave File"})["managersTold"], false);
  platform::ReadWholeFile(file, after);
  EXPECT_EQ(after, before);
  Run({"service", "on", "Wave File"});
  platform::ReadWholeFile(file, after);
  EXPECT_THAT(after, HasSubstr("a.example"));

  std::filesystem::remove(file);
  std::filesystem::create_directory(file);
  EXPECT_THAT(Run({"service", "off", "Wave File"}),
              Fails(5, AllOf(HasSubstr("is done, but"), HasSubstr("config write"))));
  EXPECT_EQ(Service("Wave File")["enabled"], false);
}

TEST_F(AlertctlWindowsTest, ListsAreNarrowedPutInOrderAndAlignWithWideLetters) {
  RunJson({"user", "add", "\u4EBA\u7269"});
  RunJson({"user", "add", "e\u0301"});
  const std::string out = Run({"user", "list", "--sort", "name"}).out;
  std::vector<std::size_t> columns;
  std::istringstream lines(out);
  for (std::string line; std::getline(lines, line);) {
    EXPECT_NE(line.back(), ' ');
    if (line.find('{') == std::string::npos) continue;
    const std::string name = line.substr(0, line.find('{'));
    columns.push_back(name.size() - (name.starts_with("\u4EBA") ? 2 : name.starts_with("e\u0301") ? 2 : 0));
  }
  EXPECT_THAT(columns, ElementsAre(6u, 6u, 6u)) << out;

  EXPECT_EQ(RunJson({"service", "list", "--where", "type=PAGER", "--where", "on=yes"}).size(), 2u);
  EXPECT_EQ(
      RunJson({"service", "list", "--where", "type=pager", "-q"}),
      json::parse(R"(["{5D1F010A-6B52-4C0E-9A37-21C48E7B9D60}", "{5D1F010B-6B52-4C0E-9A37-21C48E7B9D60}"])"));
  EXPECT_EQ(RunJson({"modem-type", "list", "--sort", "baud-rate", "--reverse"})[0]["baudRate"], 56000);
  EXPECT_THAT(Run({"service", "list", "--where", "name=zzz"}).out, "Nothing in the list matches.\n");
  EXPECT_THAT(Run({"service", "list", "--where", "colour=red"}), Fails(2, "it has name, type, on"));
  EXPECT_THAT(Run({"service", "list", "--where", "name"}), Fails(2, "FIELD=TEXT"));
}

TEST_F(AlertctlWindowsTest, ResponsesAreMadeChangedAndPointedElsewhere) {
  RunJson({"entry", "set", "Ann", "Internet Mail", "ann@example.org"});
  const json made = RunJson({"response", "add", "Internet Mail", "--message", "a\nb"});
  EXPECT_EQ(made["userName"], "Ann") << "the only one who has an entry";
  EXPECT_EQ(made["message"]["text"], "a\r\nb");
  const std::string id = made["id"];
  RunJson({"user", "add", "Bob"});
  RunJson({"entry", "set", "Bob", "Internet Mail", "bob@example.org"});
  EXPECT_THAT(Run({"response", "add", "Internet Mail"}), Fails(4, "--user"));
  EXPECT_EQ(RunJson({"response", "retarget", id, "internet mail", "--user", "bob"})["userName"], "Bob");
  EXPECT_EQ(RunJson({"response", "set", id, "--subject", "<Event ID>"})["subject"]["text"], "%ld");
  const json trap = RunJson({"response", "retarget", id, "SNMP Trap", "--message", "<Workstation> down"});
  EXPECT_EQ(trap["serviceType"], "snmp-trap");
  EXPECT_EQ(trap["message"]["text"], "%s down");
  EXPECT_EQ(trap["userId"], json());
  const json program = RunJson({"response", "add", "Program Launch Service", "--file",
                                "\\\\\\\\noc1\\\\b.exe", "--command-line", "-n <Severity>"});
  EXPECT_EQ(program["message"]["text"], "-n %s");
  EXPECT_EQ(program["responseType"], 4);
  const json twin = RunJson({"user", "add", "Ann", "--another"});
  RunJson({"entry", "set", twin["id"], "Internet Mail", "twin@example.org"});
  EXPECT_EQ(RunJson({"response", "add", "Internet Mail", "--user", twin["id"]})["userId"], twin["id"])
      << "the second of that name";
  RunJson({"response", "remove", id});
  EXPECT_THAT(Run({"response", "show", id}), Fails(3, "no response"));
}

TEST_F(AlertctlWindowsTest, ATestIsSentForRealAndItsVerdictIsTheExitCode) {
  const Ran failed = Run({"service", "test", "Program Launch Service", "--file", "/usr/bin/false", "--json"});
  EXPECT_EQ(failed.code, 6) << failed;
  EXPECT_EQ(json::parse(failed.out)["verdict"], "refused");
  EXPECT_THAT(Run({"service", "test", "Internet Mail"}), Fails(4, "--user"));
  EXPECT_THAT(Run({"service", "test", "Program Launch Service"}), Fails(4, "name it with an option"));
}

TEST_F(AlertctlWindowsTest, OptionsMayStandBeforeTheVerbAndOneFaultHasOneMessage) {
  EXPECT_EQ(json::parse(Run({"--json", "--data", data_, "service", "list"}).out).size(), 13u);
  EXPECT_EQ(json::parse(Run({"service", "--json", "list"}).out).size(), 13u);
  EXPECT_THAT(Run({"--version"}).out, testing::StartsWith("alertctl "));
  for (const Arguments& arguments :
       {Arguments{"service", "fetch"}, {"service"}, {"service", "show"}, {}, {"--colour"}}) {
    const Ran ran = Run(arguments);
    EXPECT_EQ(ran.code, 2);
    EXPECT_EQ(std::ranges::count(ran.err, '\n'), 1) << ran.err;
    EXPECT_THAT(ran.err, HasSubstr("--help"));
  }
}

}  // namespace
