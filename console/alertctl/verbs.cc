// SPDX-License-Identifier: MIT
#include "console/alertctl/verbs.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "companions/alertstore/left_out.h"
#include "companions/dbconfig/dbconfig.h"
#include "console/alertctl/dry_run.h"
#include "console/alertctl/output.h"
#include "console/site/data_directory.h"
#include "console/site/laboratory_file.h"

namespace alertctl {
namespace {

constexpr char kFooter[] =
    "Services, users and managers are named by name, in either case, or by identity.\n"
    "Exit codes: 0 done, 2 wrong usage, 3 nothing matched, 4 invalid, 5 store failure; of tests 6 refused,\n"
    "7 not reached, 8 not possible, 9 failed or not answered.";

constexpr char kNotTold[] = "The alert managers have not been told: \"alertctl config write\" tells them.\n";

/// What is shown then is not all that there is.
void WarnOfLeftOut() {
  const std::string left_out = alertstore::DescribeLeftOut(alertstore::LeftOutRecords());
  if (!left_out.empty())
    PrintError("the data are damaged: " + left_out +
               "; put a backup in their place (\"alertctl restore FILE\")");
}

/// What is shown, copied or tested then is not the site's own.
void WarnOfLaboratory() {
  if (site::LaboratoryIsRemembered())
    PrintError(
        "this site is pointed at the laboratory of a console, and tests go there: stop it in that console, "
        "or "
        "start the console where none runs, and the site's own values are put back");
}

}  // namespace

Verbs::Verbs(CLI::App& app) : app_(app) {
  AddCommonOptions(app);
  AddChangeOptions(app);
}

void Verbs::AddCommonOptions(CLI::App& app) {
  app.add_flag("--json", json_, "Print JSON instead of text");
  app.add_option("--data", data_, "Data directory; without it ALERTING_DATA, else the user's data home")
      ->check(kNotEmpty)
      ->type_name("DIR");
}

void Verbs::AddChangeOptions(CLI::App& app) {
  app.add_flag("--dry-run", dry_run_, "Say what would change, and change nothing");
  app.add_flag("--no-write", no_write_, "Leave the alert managers' configuration file as it is");
}

CLI::App& Verbs::AddNoun(const std::string& name, const std::string& description) {
  CLI::App* noun = app_.add_subcommand(name, description);
  noun->require_subcommand(1);
  AddCommonOptions(*noun);
  return *noun;
}

CLI::App& Verbs::AddVerb(CLI::App& noun, const std::string& name, Access access,
                         const std::string& description, const std::string& examples, Action action) {
  CLI::App* verb = noun.add_subcommand(name, description);
  AddCommonOptions(*verb);
  if (access == Access::kChange || access == Access::kSetUp) AddChangeOptions(*verb);
  verb->footer("Examples:\n" + examples);
  verb->final_callback([this, access, action = std::move(action)] {
    action_ = action;
    access_ = access;
  });
  return *verb;
}

void Verbs::Prepare() const {
  if (access_ == Access::kSetUp)
    site::MakeDataDirectory();
  else if (access_ != Access::kFile)
    site::RequireData();
}

// The library's windows write the file when they close; here it is written once, or not at all.
Result Verbs::RunAction() const {
  if (dry_run_ && Changes()) return RunDry();
  Prepare();
  if (!Changes()) return action_();
  const site::DirectoryTurn turn;
  dbconfig::HeldBack managers_file;
  try {
    Result result = action_();
    TellManagers(managers_file, result);
    return result;
  } catch (const Failure& failure) {
    if (failure.Code() == kStoreFailure && !no_write_) managers_file.Write();  // something may be stored
    throw;
  }
}

Result Verbs::RunDry() const {
  if (access_ == Access::kChange) site::RequireData();
  return DryRun([this] {
    Prepare();
    const dbconfig::HeldBack managers_file;
    action_();
  });
}

void Verbs::TellManagers(dbconfig::HeldBack& managers_file, Result& result) const {
  if (no_write_) {
    result.json["managersTold"] = false;
    result.text += kNotTold;
    return;
  }
  if (const std::string problem = managers_file.Write(); !problem.empty())
    throw Failure(kStoreFailure, "what was asked for is done, but the alert managers have not been told: " +
                                     problem + "; mend it, then tell them with \"alertctl config write\"");
}

int Verbs::Report(const Failure& failure) {
  PrintError(failure.what());
  for (const std::string& detail : failure.Details()) PrintError(detail);
  return failure.Code();
}

int Verbs::Run() {
  if (!data_.empty()) setenv("ALERTING_DATA", data_.c_str(), 1);
  try {
    const Result result = RunAction();
    WarnOfLeftOut();
    if (access_ != Access::kFile) WarnOfLaboratory();
    if (PrintOut(json_ ? JsonText(result.json) : Printable(result.text, true))) return result.code;
    PrintError("cannot write the output: " + LastOutputError() + "; what was asked for is done");
    return kStoreFailure;
  } catch (const Failure& failure) {
    return Report(failure);
  } catch (const std::exception& error) {
    PrintError(error.what());
    return kStoreFailure;
  }
}

namespace {

struct Noun {
  std::string_view name;
  void (*add)(Verbs&);
  std::string_view other_name = {};  ///< of a second one that comes with it

  bool IsAmong(std::span<const char* const> words) const {
    return std::ranges::any_of(words, [this](std::string_view word) {
      return word == name || (word == other_name && !word.empty());
    });
  }
};

constexpr Noun kNouns[] = {
    {"init", AddInitVerb},          {"service", AddServiceVerbs},      {"user", AddUserVerbs},
    {"entry", AddEntryVerbs},       {"response", AddResponseVerbs},    {"manager", AddManagerVerbs},
    {"modem", AddModemVerbs},       {"modem-type", AddModemTypeVerbs}, {"location", AddLocationVerbs},
    {"rules", AddRulesVerbs},       {"provider", AddProviderVerbs},    {"snmp-manager", AddSnmpManagerVerbs},
    {"computer", AddComputerVerbs}, {"config", AddConfigVerbs},        {"backup", AddBackupVerbs, "restore"}};

void DescribeRoot(Verbs& verbs) {
  verbs.Root().name("alertctl")->description("Sets up and shows how alerts reach people.");
  verbs.Root().require_subcommand(1)->footer(kFooter);
  verbs.Root().set_version_flag("--version", std::string("alertctl ") + ALERTING_VERSION);
}

}  // namespace

void AddAllVerbs(Verbs& verbs) {
  DescribeRoot(verbs);
  for (const Noun& noun : kNouns) noun.add(verbs);
}

void AddVerbsNamedIn(Verbs& verbs, std::span<const char* const> words) {
  DescribeRoot(verbs);
  for (const Noun& noun : kNouns)
    if (noun.IsAmong(words)) noun.add(verbs);
}

}  // namespace alertctl
