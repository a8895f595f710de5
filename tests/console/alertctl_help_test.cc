// SPDX-License-Identifier: MIT
#include <algorithm>
#include <sstream>

#include "console/alertctl/verbs.h"
#include "tests/console/alertctl_fixture.h"

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

/// The examples at the end of a help text. What stands behind a pipe belongs to other programs, which may not
/// be installed.
std::vector<std::string> ExamplesIn(const std::string& help) {
  std::vector<std::string> examples;
  std::istringstream lines(help.substr(std::min(help.find("Examples:\n"), help.size())));
  std::string line;
  std::getline(lines, line);
  while (std::getline(lines, line) && line.starts_with("  alertctl "))
    examples.push_back(line.substr(2, line.find(" | ") - 2));
  return examples;
}

/// All verbs of the program, as its completions offer them.
std::vector<std::string> Verbs() {
  CLI::App app;
  alertctl::Verbs verbs(app);
  alertctl::AddAllVerbs(verbs);
  std::vector<std::string> names;
  const auto all = [](const CLI::App*) { return true; };
  for (const CLI::App* noun : app.get_subcommands(all)) {
    if (noun->get_subcommands(all).empty()) names.push_back(noun->get_name());
    for (const CLI::App* verb : noun->get_subcommands(all))
      names.push_back(noun->get_name() + " " + verb->get_name());
  }
  return names;
}

/// Verbs that make what others speak of come first, those that take it away last.
std::vector<std::string> InOrder(std::vector<std::string> verbs) {
  const std::vector<std::string> first = {
      "init",         "provider import", "provider add", "user add",     "entry set",        "entry test",
      "modem add",    "modem-type add",  "location add", "computer add", "snmp-manager add", "manager add",
      "response add", "provider show",   "service copy", "response set", "response retarget"};
  const auto rank = [&](const std::string& verb) {
    const auto place = std::ranges::find(first, verb);
    const bool is_last = verb.ends_with(" remove") || verb == "service rename";
    return is_last                ? (verb == "user remove" ? 102 : 101)
           : place == first.end() ? 100
                                  : static_cast<int>(place - first.begin());
  };
  std::ranges::stable_sort(verbs, {}, rank);
  return verbs;
}

// Only the verbs of the words that were typed are made: none may be missed, and no other word may change what is meant.
TEST_F(AlertctlTest, WordsThatAreNounsElsewhereChangeNothing) {
  for (const std::string& verb : Verbs()) {
    const std::string noun = verb.substr(0, verb.find(' '));
    CLI::App app;
    alertctl::Verbs verbs(app);
    const char* const words[] = {"alertctl", noun.c_str()};
    alertctl::AddVerbsNamedIn(verbs, words);
    EXPECT_NO_THROW(app.get_subcommand(noun)) << noun;
  }
  EXPECT_THAT(Run({"frob"}).err, HasSubstr("choose one of init, service, user,"));
  EXPECT_THAT(Run({"--data", "user", "frob"}).err, HasSubstr("choose one of init, service, user,"));
  EXPECT_THAT(Run({"restore", "backup"}).err, HasSubstr("cannot restore the backup backup"));
  EXPECT_THAT(RunLine(Quoted(ALERTCTL) + " --help").out, HasSubstr("snmp-manager"));
}

// In an order in which each verb finds what its examples speak of.
TEST_F(AlertctlTest, EveryExampleWorksAsItIsPrinted) {
  const std::string program = ALERTCTL;
  const std::string path = "PATH=" + Quoted(program.substr(0, program.rfind('/'))) + ":$PATH; ";
  std::filesystem::copy_file(PROVIDERS_EXAMPLE, root_ + "/providers.csv");
  for (const std::string& verb : InOrder(Verbs())) {
    const Ran help = RunLine(path + "alertctl " + verb + " --help");
    EXPECT_EQ(help.code, 0);
    EXPECT_THAT(help.out, AllOf(HasSubstr("--json"), HasSubstr("--data")));
    const auto examples = ExamplesIn(help.out);
    EXPECT_FALSE(examples.empty()) << help.out;
    for (const std::string& example : examples) {
      EXPECT_THAT(example, StartsWith("alertctl " + verb));
      const Ran ran = RunLine(path + example);
      // What becomes of a test depends on what there is to reach.
      const bool is_verdict = verb.ends_with(" test") && ran.code >= 6 && ran.code <= 9;
      EXPECT_TRUE(ran.code == 0 || is_verdict) << example << "\n" << ran.err;
      EXPECT_EQ(ran.err, "") << example;
    }
  }
}

}  // namespace
