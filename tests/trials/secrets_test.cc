// SPDX-License-Identifier: MIT
// Passwords and community names are nowhere but in the records, in the alert managers' file, and on the wire.
#include <sys/stat.h>

#include <atomic>
#include <set>
#include <sstream>
#include <thread>

#include "platform/base/base64.h"
#include "tests/lab/laboratory_process.h"
#include "tests/server/smtp_responder.h"
#include "tests/support/program.h"
#include "tests/trials/trial_site.h"

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// Every secret of the site begins so; some types have no longer ones.
const std::string kMark = "TRIALSEC";
const std::string kPassword = kMark + "-internet-mail", kCommunity = kMark + "-community";

/// As it is, and as base64 has it behind any number of other bytes: but for the digits that neighbours share.
std::vector<std::string> FormsOf(const std::string& mark) {
  std::vector<std::string> forms{mark};
  for (const std::size_t before : {0, 1, 2}) {
    const std::string digits = platform::EncodeBase64(std::string(before, '-') + mark);
    const std::size_t first = (before * 8 + 5) / 6, end = (before + mark.size()) * 8 / 6;
    forms.push_back(digits.substr(first, end - first));
  }
  return forms;
}

bool IsMarked(const std::string& text) {
  static const std::vector<std::string> forms = FormsOf(kMark);
  return std::ranges::any_of(forms, [&](const std::string& form) { return text.find(form) != text.npos; });
}

std::string ReadAll(const fs::path& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();  // a process may be gone by now
  return bytes.str();
}

/// Looks over and over at the arguments and environments of the processes that have one of some texts in their arguments.
class Onlooker {
 public:
  explicit Onlooker(std::vector<std::string> texts) : texts_(std::move(texts)), thread_([this] { Look(); }) {}
  ~Onlooker() { Seen(); }
  /// Ends it. The arguments of the processes, apart by blanks.
  const std::set<std::string>& Seen() {
    stop_ = true;
    if (thread_.joinable()) thread_.join();
    return seen_;
  }
  /// Those that were marked.
  const std::set<std::string>& Marked() { return Seen(), marked_; }

 private:
  void Look() {
    while (!stop_) {
      std::error_code none;
      for (const auto& entry : fs::directory_iterator("/proc", none))
        if (std::isdigit(entry.path().filename().native()[0]) != 0) LookAt(entry.path());
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
  }
  void LookAt(const fs::path& process) {
    std::string words = ReadAll(process / "cmdline");
    std::ranges::replace(words, '\0', ' ');
    const auto is_in = [&](const std::string& text) { return words.find(text) != words.npos; };
    if (std::ranges::none_of(texts_, is_in)) return;
    if (IsMarked(words) || IsMarked(ReadAll(process / "environ"))) marked_.insert(words);
    seen_.insert(words);
  }

  const std::vector<std::string> texts_;
  std::atomic<bool> stop_ = false;
  std::set<std::string> seen_, marked_;
  std::thread thread_;
};

/// The names of the files below a directory that a mark is in. Those that others may read are told apart.
std::set<std::string> MarkedFiles(const std::string& directory) {
  std::set<std::string> names;
  for (const auto& entry : fs::recursive_directory_iterator(directory)) {
    struct stat found {};
    if (stat(entry.path().c_str(), &found) != 0 || !S_ISREG(found.st_mode)) continue;
    if (IsMarked(ReadAll(entry.path())))
      names.insert(entry.path().filename().string() +
                   ((found.st_mode & 077) == 0 ? "" : ", which others may read"));
  }
  return names;
}

class SecretsTest : public trials::TrialTest {
 protected:
  void SetUp() override {
#if !defined(ALERTSERVER_WITH_CURL) || !defined(ALERTSERVER_WITH_SNMP)
    GTEST_SKIP() << "the alert server is built without libcurl or net-snmp";
#endif
    TrialTest::SetUp();
    SetUpMail(kPassword);
    SetUpTraps(kCommunity);
    SetAddress("Internet Mail", "ann@example.org");
    SetUpClosedMails();
    RunJson({"config", "write"});
  }
  /// The types whose services are gone have passwords still.
  void SetUpClosedMails() {
    const std::pair<const char*, Arguments> kMails[] = {{"MHS Mail", {"--directory", "/mhs"}},
                                                        {"MCI Mail", {"--phone", "5550100"}},
                                                        {"CompuServe Mail", {"--phone", "5550100"}},
                                                        {"Microsoft Mail", {}},
                                                        {"cc:Mail", {}}};
    for (const auto& [name, more] : kMails) {
      Arguments arguments{"service", "set", name, "--login", "me", "--password-file", Line(kMark)};
      arguments.insert(arguments.end(), more.begin(), more.end());
      RunJson(arguments);
      SetAddress(name, "ann");
      closed_.push_back(name);
    }
    for (int i = 1; fs::exists(root_ + "/line-" + std::to_string(i)); ++i)
      fs::remove(root_ + "/line-" + std::to_string(i));
  }
  /// What is printed of tests that are sent all at once, each as text and as JSON.
  std::string Said(const std::vector<Arguments>& tests) {
    std::vector<Arguments> commands = tests;
    for (Arguments test : tests) {
      test.push_back("--json");
      commands.push_back(test);
    }
    std::string said;
    for (const Ran& ran : RunTogether(commands)) {
      EXPECT_THAT(ran.code, testing::AnyOf(0, 6, 8)) << ran;
      said += ran.out + ran.err;
    }
    return said;
  }
  void ExpectSecret(const std::string& said) { EXPECT_FALSE(IsMarked(said)) << said; }
  void Use(std::uint16_t mail_port, std::uint16_t trap_port = 162) {
    WriteSettings(
        {{"smtpPort", mail_port}, {"trapPort", trap_port}, {"informMilliseconds", 300}, {"mailTls", "none"}});
  }

  std::vector<std::string> closed_;
  const Arguments mail_{"entry", "test", "Ann", "Internet Mail", "--message", "Only a test."},
      traps_{"service", "test", "SNMP Trap", "--message", "Only a test."};
};

TEST_F(SecretsTest, NothingThatIsSaidOrKeptHoldsOne) {
  const LaboratoryProcess laboratory({"--slow", "100", "--fault", "mail=slow"});
  ASSERT_FALSE(laboratory.Places().is_null());
  Use(static_cast<std::uint16_t>(laboratory.PortOf("mail")),
      static_cast<std::uint16_t>(laboratory.PortOf("traps")));
  const std::string script = root_ + "/script", log = root_ + "/log";
  std::ofstream(script) << "#!/bin/sh\nenv\ncat /proc/$PPID/environ /proc/$PPID/cmdline\nsleep 0.3\n";
  fs::permissions(script, fs::perms::owner_all);
  std::string said;
  {
    test_support::Program server({ALERTSERVER, "--data", data_}, log);
    Onlooker onlooker({root_, ALERTCTL});
    std::vector<Arguments> tests{
        mail_, traps_, {"service", "test", "Program Launch Service", "--file", script, "--yes"}};
    for (const std::string& name : closed_)
      tests.push_back({"entry", "test", "Ann", name, "--message", "Only a test."});
    said += Said(tests);
    laboratory.Tell("fault mail=wrong-password");
    laboratory.Tell("fault traps=rejected");
    said += Said({mail_, traps_});
    EXPECT_THAT(onlooker.Marked(), IsEmpty());
    // That it looked where it should.
    for (const std::string& words :
         {std::string(ALERTSERVER) + " --data", "/bin/sh " + script, std::string(ALERTCTL)})
      EXPECT_TRUE(std::ranges::any_of(onlooker.Seen(), [&](const std::string& one) {
        return one.starts_with(words);
      })) << words;
    EXPECT_EQ(server.End(SIGTERM), 0);
  }
  ExpectSecret(said);
  EXPECT_THAT(said, testing::AllOf(HasSubstr("AUTH"), HasSubstr("confirmed"), HasSubstr("PATH=")));
  EXPECT_THAT(ReadAll(log), HasSubstr("verdict refused"));
  // Those that keep them, for their owner alone. All else that was written lies here too: logs, reports, what is left of jobs.
  EXPECT_THAT(MarkedFiles(root_), testing::ElementsAre("alert-managers.json", "alerting.db", "recent.json"));
  // Whoever rehearses is shown which community came, but no password.
  EXPECT_THAT(laboratory.Said(), HasSubstr(kCommunity));
  EXPECT_EQ(laboratory.Said().find(kPassword), std::string::npos);
}

/// Some servers say again what they did not like.
TEST_F(SecretsTest, WhatAServerEchoesIsMaskedWhereverItStands) {
  using namespace std::string_literals;
  const std::string plain = platform::EncodeBase64("\0me@site.example\0"s + kPassword);
  // The second is cut where reports cut what was said, in the middle of the password.
  for (const std::string& echo : {kPassword + ' ' + platform::EncodeBase64(kPassword) + ' ' + plain,
                                  std::string(980, '.') + kPassword}) {
    test_support::SmtpResponder responder({{"login", "535 no: " + echo + "\r\n"}});
    Use(responder.Port());
    const json report = Report(mail_);
    EXPECT_EQ(report["field"], "password") << report.dump(1);
    EXPECT_THAT(trials::Said(report, "Log in"), HasSubstr("535 no: "));
    ExpectSecret(report.dump());
    EXPECT_TRUE(IsMarked(responder.Commands())) << "the search finds what goes over the wire";
  }
}

}  // namespace
