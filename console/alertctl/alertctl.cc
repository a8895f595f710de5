// SPDX-License-Identifier: MIT
// alertctl: the command line of the alerting configuration.
#include <iostream>
#include <sstream>

#include "console/alertctl/output.h"
#include "console/alertctl/verbs.h"

namespace {

/// Usage errors have one exit code; asking for help is none. A word that means nothing is named, also where
/// what is missing in its place was noticed first.
int OnParseError(const CLI::App& app, const CLI::ParseError& error) {
  const std::vector<std::string> unknown = app.remaining(true);
  const bool is_error = error.get_exit_code() != 0;
  if (is_error && !unknown.empty())
    alertctl::PrintError("nothing is called \"" + unknown.front() + "\" here");
  std::ostringstream help, problem;
  app.exit(error, help, problem);
  std::cerr << alertctl::Printable(problem.str(), true);
  if (is_error) return alertctl::kUsage;
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
  }
  return verbs.Run();
}
