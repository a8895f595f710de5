// SPDX-License-Identifier: MIT
// alertctl: the command line of the alerting configuration.
#include <sstream>

#include "console/alertctl/output.h"
#include "console/alertctl/verbs.h"

namespace {

/// The noun or verb that the command line came to: "alertctl service".
const CLI::App& Reached(const CLI::App& app, std::string& words) {
  words += (words.empty() ? "" : " ") + app.get_name();
  const auto further = app.get_subcommands();
  return further.empty() ? app : Reached(*further.front(), words);
}

std::string Offered(const CLI::App& app) {
  std::string names;
  for (const CLI::App* each : app.get_subcommands([](const CLI::App*) { return true; }))
    names += (names.empty() ? "" : ", ") + each->get_name();
  return names;
}

/// One sentence: what is wrong, and where to look. A word that means nothing is named, also where what is missing in its
/// place was noticed first.
std::string Problem(const CLI::App& app, const CLI::ParseError& error) {
  std::string words;
  const CLI::App& reached = Reached(app, words);
  const std::vector<std::string> unknown = app.remaining(true);
  const std::string offered = Offered(reached);
  std::string problem = error.what();
  if (!unknown.empty())
    problem = "nothing is called \"" + unknown.front() + "\" here";
  else if (!offered.empty() && reached.get_subcommands().empty())
    problem = "a subcommand is missing behind \"" + words + "\"";
  if (!offered.empty()) problem += "; choose one of " + offered;
  return problem + " (\"" + words + " --help\" tells more)";
}

/// Usage errors have one exit code; asking for help is none.
int OnParseError(const CLI::App& app, const CLI::ParseError& error) {
  if (error.get_exit_code() != 0) {
    alertctl::PrintError(Problem(app, error));
    return alertctl::kUsage;
  }
  std::ostringstream help;
  app.exit(error, help, help);
  if (alertctl::PrintOut(help.str())) return alertctl::kDone;
  alertctl::PrintError("cannot write the output: " + alertctl::LastOutputError());
  return alertctl::kStoreFailure;
}

}  // namespace

int main(int argc, char** argv) {
  alertctl::ReserveStandardStreams();
  CLI::App app;
  alertctl::Verbs verbs(app);
  alertctl::AddAllVerbs(verbs);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return OnParseError(app, error);
  } catch (const alertctl::Failure& failure) {
    return alertctl::Verbs::Report(failure);
  }
  return verbs.Run();
}
