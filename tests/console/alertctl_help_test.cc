// SPDX-License-Identifier: MIT
#include <sstream>

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

// In an order in which each verb finds what its examples speak of.
TEST_F(AlertctlTest, EveryExampleWorksAsItIsPrinted) {
  const std::string program = ALERTCTL;
  const std::string path = "PATH=" + Quoted(program.substr(0, program.rfind('/'))) + ":$PATH; ";
  std::filesystem::copy_file(PROVIDERS_EXAMPLE, root_ + "/providers.csv");
  for (const std::string verb :
       {"init",          "provider import", "provider list",  "provider show",   "provider add",
        "provider set",  "provider remove", "user add",       "user list",       "service list",
        "service show",  "service copy",    "service enable", "service disable", "service delete",
        "entry set",     "entry list",      "entry remove",   "user remove",     "manager list",
        "response list", "response show",   "config write",   "config show",     "backup",
        "restore"}) {
    const Ran help = RunLine(path + "alertctl " + verb + " --help");
    EXPECT_EQ(help.code, 0);
    EXPECT_THAT(help.out, AllOf(HasSubstr("--json"), HasSubstr("--data")));
    const auto examples = ExamplesIn(help.out);
    EXPECT_FALSE(examples.empty()) << help.out;
    for (const std::string& example : examples) {
      EXPECT_THAT(example, StartsWith("alertctl " + verb));
      const Ran ran = RunLine(path + example);
      EXPECT_EQ(ran.code, 0) << example << "\n" << ran.err;
      EXPECT_EQ(ran.err, "") << example;
    }
  }
}

}  // namespace
