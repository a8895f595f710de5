// SPDX-License-Identifier: MIT
#include "console/alertctl/verbs.h"

#include <cstdlib>
#include <iostream>
#include <optional>

#include "companions/alertstore/left_out.h"
#include "console/alertctl/output.h"
#include "console/site/data_directory.h"

namespace alertctl {

CLI::App& Verbs::AddNoun(const std::string& name, const std::string& description) {
  CLI::App* noun = app_.add_subcommand(name, description);
  noun->require_subcommand(1);
  return *noun;
}

CLI::App& Verbs::AddVerb(CLI::App& noun, const std::string& name, Access access,
                         const std::string& description, const std::string& examples, Action action) {
  CLI::App* verb = noun.add_subcommand(name, description);
  verb->add_flag("--json", json_, "Print JSON instead of text");
  verb->add_option("--data", data_, "Data directory; without it ALERTING_DATA, else the user's data home")
      ->check(kNotEmpty)
      ->type_name("DIR");
  verb->footer("Examples:\n" + examples);
  verb->final_callback([this, access, action = std::move(action)] {
    action_ = action;
    access_ = access;
  });
  return *verb;
}

Result Verbs::RunAction() const {
  if (access_ == Access::kFile) return action_();
  if (access_ == Access::kSetUp)
    site::MakeDataDirectory();
  else
    site::RequireData();
  std::optional<site::DirectoryTurn> turn;
  if (access_ == Access::kChange || access_ == Access::kSetUp) turn.emplace();
  return action_();
}

namespace {

/// What is shown then is not all that there is.
void WarnOfLeftOut() {
  const std::string left_out = alertstore::DescribeLeftOut(alertstore::LeftOutRecords());
  if (!left_out.empty())
    PrintError("the data are damaged: " + left_out +
               "; put a backup in their place (\"alertctl restore FILE\")");
}

}  // namespace

int Verbs::Run() {
  if (!data_.empty()) setenv("ALERTING_DATA", data_.c_str(), 1);
  try {
    const Result result = RunAction();
    WarnOfLeftOut();
    if (PrintOut(json_ ? JsonText(result.json) : Printable(result.text, true))) return kDone;
    PrintError("cannot write the output: " + LastOutputError() + "; what was asked for is done");
    return kStoreFailure;
  } catch (const Failure& failure) {
    PrintError(failure.what());
    for (const std::string& detail : failure.Details()) PrintError(detail);
    return failure.Code();
  } catch (const std::exception& error) {
    PrintError(error.what());
    return kStoreFailure;
  }
}

namespace {

constexpr char kFooter[] =
    "Services, users and managers are named by name, in either case, or by identity.\n"
    "Exit codes: 0 done, 2 wrong usage, 3 nothing matched, 4 invalid, 5 store failure.";

}  // namespace

void AddAllVerbs(Verbs& verbs) {
  verbs.Root().name("alertctl")->description("Sets up and shows how alerts reach people.");
  verbs.Root().require_subcommand(1)->footer(kFooter);
  for (const auto add : {AddInitVerb, AddServiceVerbs, AddUserVerbs, AddEntryVerbs, AddManagerVerbs,
                         AddProviderVerbs, AddResponseVerbs, AddConfigVerbs, AddBackupVerbs})
    add(verbs);
}

}  // namespace alertctl
