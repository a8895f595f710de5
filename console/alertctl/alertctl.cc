// SPDX-License-Identifier: MIT
// alertctl: the command line of the alerting configuration.
#include <optional>
#include <span>
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

using AddVerbs = void (*)(alertctl::Verbs&, std::span<const char* const> words);

void AddAll(alertctl::Verbs& verbs, std::span<const char* const>) { alertctl::AddAllVerbs(verbs); }

/// Nothing where no noun is known among the verbs that were added: with all of them there is more to say. No option of a verb
/// has been read then.
std::optional<int> Run(int argc, char** argv, AddVerbs add) {
  CLI::App app;
  alertctl::Verbs verbs(app);
  add(verbs, {argv, static_cast<std::size_t>(argc)});
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (add != AddAll && app.get_subcommands().empty()) return std::nullopt;
    return OnParseError(app, error);
  } catch (const alertctl::Failure& failure) {
    return alertctl::Verbs::Report(failure);
  }
  return verbs.Run();
}

}  // namespace

int main(int argc, char** argv) {
  alertctl::ReserveStandardStreams();
  if (const auto code = Run(argc, argv, alertctl::AddVerbsNamedIn)) return *code;
  return Run(argc, argv, AddAll).value_or(alertctl::kUsage);
}
